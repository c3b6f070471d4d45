// SPDX-License-Identifier: MIT
#include "shell/machine/MessageQuestions.h"

#include "shell/machine/AsQString.h"
#include "shell/machine/DocumentsFolder.h"
#include "shell/machine/ExecOwned.h"
#include "shell/machine/WholeLines.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QFileDialog>
#include <QInputDialog>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPointer>

namespace korvel
{
namespace
{

/// A carriage return is the line break of the program's messages, a line feed the toolkit's.
QString shown(const std::string& text)
{
    return asQString(text).replace('\r', '\n');
}

QMessageBox::StandardButtons buttonsOf(Buttons buttons)
{
    switch (buttons) {
    case Buttons::OkCancel:
        return QMessageBox::Ok | QMessageBox::Cancel;
    case Buttons::YesNo:
        return QMessageBox::Yes | QMessageBox::No;
    case Buttons::Ok:
        break;
    }
    return QMessageBox::Ok;
}

/// Knows whether it was left without a button: the toolkit takes Escape and the cross for No.
class MessageBox : public QMessageBox
{
public:
    using QMessageBox::QMessageBox;

    bool wasLeft() const { return m_left; }

protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        if (event->matches(QKeySequence::Cancel)) m_left = true;
        QMessageBox::keyPressEvent(event);
    }
    void closeEvent(QCloseEvent* event) override
    {
        m_left = true;
        QMessageBox::closeEvent(event);
    }

private:
    bool m_left = false;
};

/// The question at start-up stands below the title picture instead of on it.
void placeBelowStartWindow(QDialog& dialog)
{
    const QWidget* parent = dialog.parentWidget();
    if (!parent || parent->windowType() != Qt::SplashScreen) return;
    dialog.adjustSize();
    dialog.move(parent->geometry().center().x() - dialog.width() / 2,
                parent->geometry().bottom() + dialog.fontMetrics().height());
}

} // namespace

MessageQuestions::MessageQuestions() : m_lastFolder(documentsFolder()) {}

QWidget* MessageQuestions::asker()
{
    if (QWidget* modal = QApplication::activeModalWidget()) return modal;
    if (QWidget* active = QApplication::activeWindow()) m_lastAsker = active;
    // A question that follows another at once comes before its window is active again.
    if (m_lastAsker && m_lastAsker->isVisible()) return m_lastAsker;
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->isVisible()) return window;
    return nullptr;
}

Answer MessageQuestions::ask(const Message& message)
{
    // The window that it belongs to may be gone before, as at the end of the session.
    const QPointer<MessageBox> box = new MessageBox(asker());
    box->setWindowTitle(shown(message.title));
    box->setTextFormat(Qt::PlainText);
    box->setText(shown(message.text));
    box->setStandardButtons(buttonsOf(message.buttons));
    if (message.buttons != Buttons::Ok) {
        const bool yesNo = message.buttons == Buttons::YesNo;
        box->setEscapeButton(yesNo ? QMessageBox::No : QMessageBox::Cancel);
        box->setDefaultButton(yesNo ? QMessageBox::Yes : QMessageBox::Ok);
        box->setIcon(QMessageBox::Question);
    } else {
        box->setIcon(QMessageBox::Information);
    }
    keepLinesWhole(*box);
    const int pressed = box->exec();
    const bool wasLeft = !box || box->wasLeft();
    delete box.data();
    if (wasLeft && message.buttons != Buttons::Ok) return Answer::Cancel;
    switch (pressed) {
    case QMessageBox::Yes:
        return Answer::Yes;
    case QMessageBox::No:
        return Answer::No;
    case QMessageBox::Cancel:
        return Answer::Cancel;
    default:
        return Answer::Ok;
    }
}

std::optional<std::string> MessageQuestions::input(const std::string& prompt,
                                                   const std::string& title,
                                                   const std::string& defaultAnswer)
{
    const QPointer<QInputDialog> dialog = new QInputDialog(asker());
    dialog->setWindowTitle(shown(title));
    dialog->setLabelText(shown(prompt));
    dialog->setTextValue(asQString(defaultAnswer));
    placeBelowStartWindow(*dialog);
    const bool accepted = dialog->exec() == QDialog::Accepted;
    std::optional<std::string> answer;
    if (dialog && accepted) answer = dialog->textValue().toStdString();
    delete dialog.data();
    return answer;
}

namespace
{

/// @param endings parted by blanks
QString filterOf(const QString& endings)
{
    const QStringList all = endings.split(' ');
    return QString("%1 (*.%2)").arg(all.join(", ").toUpper(), all.join(" *."));
}

/// Shows a dialog until it is left, and deletes it. @return the path chosen; empty for none
QString chosenIn(QFileDialog* dialog)
{
    QString path;
    QObject::connect(dialog, &QFileDialog::fileSelected, dialog,
                     [&path](const QString& file) { path = file; });
    return execOwned(dialog) == QDialog::Accepted ? path : QString();
}

} // namespace

std::optional<std::string> MessageQuestions::chosen(const QString& path)
{
    if (path.isEmpty()) return std::nullopt;
    m_lastFolder = QFileInfo(path).path();
    return path.toStdString();
}

std::optional<std::string> MessageQuestions::fileToWrite(const std::string& title,
                                                         const std::string& offered)
{
    const QString name = asQString(offered);
    const QString ending = QFileInfo(name).suffix();
    auto* dialog = new QFileDialog(asker(), shown(title), m_lastFolder, filterOf(ending));
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix(ending); // before it asks whether a file may be replaced
    dialog->selectFile(name);
    return chosen(chosenIn(dialog));
}

std::optional<std::string> MessageQuestions::fileToRead(const std::string& title,
                                                        const std::string& ending)
{
    auto* dialog =
        new QFileDialog(asker(), shown(title), m_lastFolder, filterOf(asQString(ending)));
    dialog->setFileMode(QFileDialog::ExistingFile);
    return chosen(chosenIn(dialog));
}

void MessageQuestions::beep()
{
    QApplication::beep();
}

} // namespace korvel

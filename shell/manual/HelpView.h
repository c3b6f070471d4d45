// SPDX-License-Identifier: MIT
#pragma once

#include "shell/manual/ManualPlaces.h"

#include <QTextBrowser>

#include <functional>
#include <map>

namespace korvel
{

class Manual;

/// Shows a page of the manual. Its links lead to other pages and, behind "#", to what bears a name
/// there; a link that leads out of the manual is shown and not followed.
class HelpView : public QTextBrowser
{
    Q_OBJECT

public:
    /// @param manual must outlive the view
    explicit HelpView(const Manual& manual, QWidget* parent = nullptr);

    /// Name of the page that is shown.
    QString page() const { return m_page; }

    /// Opens a page at a name. @return false when the page has no place for it: then it is shown
    /// from its top
    bool openAt(const QString& page, const QString& name);
    /// Opens a page with a place at the top of the view and the words marked.
    void openAt(const QString& page, const PagePlace& place, const QString& words);

    void backward() override;
    void forward() override;

    /// Goes to the next place that holds a text, round the page's end.
    /// @param words not empty
    /// @return false: there is none
    bool findNext(const QString& words, bool backwards);
    /// Marks words wherever they stand in the page.
    void mark(const QString& words);

signals:
    /// Another page is shown.
    void pageShown(const QString& page);

protected:
    QVariant loadResource(int type, const QUrl& name) override;
    void doSetSource(const QUrl& name, QTextDocument::ResourceType type) override;
    void changeEvent(QEvent* event) override;

private:
    void changePage(const std::function<void()>& change);
    void showAgain(const std::function<void()>& step);
    void showPage(const QString& page);
    void scrollTo(const PagePlace& place);

    const Manual& m_manual;
    QString m_page;
    std::map<QString, int> m_leftAt; ///< how far each page was scrolled
};

} // namespace korvel

// SPDX-License-Identifier: MIT
#pragma once

#include "app/records/SettingsFile.h"
#include "shell/controls/Boxes.h"
#include "shell/controls/NoticeLine.h"

#include <QTimer>

#include <memory>
#include <optional>

namespace korvel
{

class Program;

/// The settings file of a window: filled when the window loads, written once for a burst
/// of changes, less than two seconds after the first of them, and when the window closes.
class WindowRecord : public QObject
{
public:
    using Save = std::function<Record()>;
    using Load = std::function<void(const Record&)>;
    using Salvage = std::function<void(const std::string& bytes)>;

    /// @param window whose controls are watched for changes
    WindowRecord(Program& program, NoticeLine& notices, QWidget& window);

    /// Names the file and how the record is filled and taken over. A window without a record never
    /// calls it.
    /// @param salvage what is done with the bytes of a damaged file after that, where the window
    ///                knows more of them than the values that could be read one by one
    void use(const std::string& file, std::vector<FieldKind> kinds, Save save, Load load,
             Salvage salvage = {});
    /// The same for a record that is the texts of boxes, in their order.
    /// @param settle what is done to the texts before they are written
    void useTexts(const std::string& file, std::vector<EntryBox*> boxes,
                  std::function<void(Record&)> settle = {});

    /// The same for a record in a form of the window's own.
    /// @param save the bytes of the file
    /// @param take fills the window from them. @return what could not be read, for the officer;
    ///             empty when all was
    void useText(const std::string& file, std::function<std::string()> save,
                 std::function<std::string(const std::string& bytes)> take);

    /// Fills the window and from then on keeps the file as the window is.
    /// @return true when anything was found to fill it with
    bool load();

    /// Writes the file a moment after the first of the changes that it does not hold. Changes of
    /// the window's controls are noticed by themselves; this is for what is no control.
    void changed();
    /// Writes the file while the window stays open; a fault goes to the notice line.
    void saveNow();
    /// The same when the present user action is over: however often it is called meanwhile, the
    /// file is written once.
    void saveSoon();
    /// Writes the file for the last time, asking where there is something to ask.
    void saveAtClose();

private:
    void watchControls();
    bool loadText();
    bool isUsed() const { return m_file || m_text; }
    std::string bytes() const { return m_text ? m_saveText() : writeRecord(m_save()); }

    Program& m_program;
    NoticeLine& m_notices;
    QWidget& m_window;
    QTimer m_burst; ///< runs from the first change to the write
    std::unique_ptr<SettingsFile> m_file;
    std::unique_ptr<RecordFile> m_text; ///< of a record in a form of its own, instead
    std::function<std::string()> m_saveText;
    std::function<std::string(const std::string&)> m_takeText;
    Save m_save;
    Load m_load;
    Salvage m_salvage;
    std::optional<std::string> m_onDisk; ///< what the file holds for sure
    bool m_isLoaded = false;             ///< what the window shows before is no record of anything
};

} // namespace korvel

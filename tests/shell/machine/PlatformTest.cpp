// SPDX-License-Identifier: MIT
#include "shell/machine/Platform.h"
#include "shell/screen/OwnFonts.h"

#include <gtest/gtest.h>

#include <QByteArray>
#include <QDir>
#include <QTemporaryDir>
#include <QtGlobal>

#include <map>

namespace korvel
{
namespace
{

/// What the environment says, and gets back.
class PlatformTest : public ::testing::Test
{
protected:
    PlatformTest()
    {
        for (const char* name : names)
            if (qEnvironmentVariableIsSet(name)) m_before[name] = qgetenv(name);
    }
    ~PlatformTest() override
    {
        for (const char* name : names)
            set(name, m_before.count(name) ? m_before[name].constData() : nullptr);
    }
    static void set(const char* name, const char* value)
    {
        value ? qputenv(name, value) : qunsetenv(name);
    }

private:
    static constexpr const char* names[] = {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY",
                                            "XKB_CONFIG_ROOT", "FONTCONFIG_FILE"};
    std::map<QByteArray, QByteArray> m_before;
};

TEST_F(PlatformTest, isX11WhereWaylandHasNoTablesOfKeyboards)
{
    const QTemporaryDir tables, empty;
    QDir(tables.path()).mkdir("rules");
    const struct {
        const char* fault;
        const char *own, *x11, *wayland;
        const QTemporaryDir& keyboards;
        QByteArray chosen;
    } rows[] = {
        {"Wayland's part falls", nullptr, ":0", "wayland-0", empty, "xcb"},
        {"Wayland left though it works", nullptr, ":0", "wayland-0", tables, ""},
        {"the officer's choice lost", "wayland", ":0", "wayland-0", empty, "wayland"},
        {"X11 where there is none", nullptr, nullptr, "wayland-0", empty, ""},
        {"X11 said where there is nothing else", nullptr, ":0", nullptr, empty, ""},
    };
    for (const auto& row : rows) {
        set("QT_QPA_PLATFORM", row.own);
        set("DISPLAY", row.x11);
        set("WAYLAND_DISPLAY", row.wayland);
        set("XKB_CONFIG_ROOT", row.keyboards.path().toLocal8Bit().constData());
        choosePlatform();
        EXPECT_EQ(qgetenv("QT_QPA_PLATFORM"), row.chosen) << row.fault;
    }
}

TEST_F(PlatformTest, lettersAreTheSystemsWhereTheProgramHasNone)
{
    set("FONTCONFIG_FILE", nullptr);
    useOwnFonts();
    EXPECT_FALSE(qEnvironmentVariableIsSet("FONTCONFIG_FILE"));
}

} // namespace
} // namespace korvel

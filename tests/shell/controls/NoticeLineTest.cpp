// SPDX-License-Identifier: MIT
#include "shell/controls/NoticeLine.h"
#include "shell/controls/NoticeSign.h"
#include "shell/screen/ColourScheme.h"
#include "tests/shell/Pixels.h"
#include "tests/shell/WholeProgram.h"

#include <QAccessible>

#include <optional>
#include <set>

namespace korvel
{
namespace
{

using namespace korvel::testing;

constexpr std::optional<NoticeLevel> allLevels[] = {std::nullopt, NoticeLevel::Done,
                                                    NoticeLevel::Remark, NoticeLevel::Fault};

double inkOf(const QImage& sign)
{
    double ink = 0;
    for (int y = 0; y < sign.height(); ++y)
        for (int x = 0; x < sign.width(); ++x)
            ink += 255 - qGray(sign.pixel(x, y));
    return ink;
}

/// A level that only its colour tells apart, or that the night swallows.
TEST(NoticeLevels, haveSignsOfTheirOwnAndCanBeRead)
{
    std::set<QByteArray> signs;
    for (const auto level : allLevels) {
        QImage sign(24, 24, QImage::Format_Grayscale8);
        sign.fill(Qt::white);
        QPainter painter(&sign);
        const QPen pen(Qt::black, 3);
        painter.setPen(pen);
        drawNoticeSign(painter, QRectF(4, 4, 16, 16), level);
        EXPECT_EQ(painter.pen(), pen) << "what is drawn after it";
        EXPECT_EQ(painter.renderHints() & QPainter::Antialiasing, QPainter::RenderHints());
        painter.end();
        EXPECT_GE(strongestContrast(sign, sign.rect()), 4.5);
        const double above = inkOf(sign.copy(0, 0, 24, 12)),
                     below = inkOf(sign.copy(0, 12, 24, 12));
        if (level == NoticeLevel::Remark) {
            EXPECT_GT(below, 1.3 * above) << "a triangle on its foot";
        } else if (level == NoticeLevel::Fault) {
            EXPECT_NEAR(below / above, 1, 0.1) << "a disc";
        }
        signs.insert(QByteArray(reinterpret_cast<const char*>(sign.constBits()),
                                static_cast<qsizetype>(sign.sizeInBytes())));
    }
    EXPECT_EQ(signs.size(), 4u);
    for (const ColourScheme& scheme : {ColourScheme::day(), ColourScheme::night(0),
                                       ColourScheme::night(1), ColourScheme::night(2)})
        for (const QColor& colour : {scheme.echo, scheme.done, scheme.notice, scheme.fault})
            EXPECT_GE(contrast(colour.rgb(), scheme.palette.color(QPalette::Window).rgb(),
                               strayLight(scheme.palette)),
                      4.5)
                << colour.name().toStdString();
}

/// A remark before a fault; a fault that stays the level when it is taken back; what passes on a
/// paper.
TEST(NoticeLevels, theGravestStandsFirst)
{
    NoticeLine line;
    line.say("~1", "Saved", NoticeLevel::Done);
    EXPECT_EQ(line.level(), NoticeLevel::Done);
    line.say("2", "Look here");
    line.say("3", "Blank", NoticeLevel::Fault);
    EXPECT_EQ(line.text(), "Blank  Look here  Saved");
    EXPECT_EQ(line.firstSaid(), "Blank");
    EXPECT_EQ(line.onPaper().join("  "), "Blank  Look here");
    EXPECT_EQ(line.level(), NoticeLevel::Fault);
    line.say("3", "");
    EXPECT_EQ(line.level(), NoticeLevel::Remark);
    line.say("2", "");
    line.say("~1", "");
    EXPECT_EQ(line.level(), std::nullopt);
}

class Heard : public WholeProgram
{
protected:
    Heard()
    {
        alerts.clear();
        QAccessible::setActive(true);
        before = QAccessible::installUpdateHandler([](QAccessibleEvent* event) {
            if (event->type() == QAccessible::Alert && event->object())
                alerts.push_back(event->object()->objectName().toStdString());
        });
    }
    ~Heard() override
    {
        QAccessible::installUpdateHandler(before);
        QAccessible::setActive(false);
    }

    static inline std::vector<std::string> alerts;
    QAccessible::UpdateHandler before = nullptr;
};

/// One word a key; a picture that says nothing.
TEST_F(Heard, noWordForEveryKeyAndPicturesInWords)
{
    main.openWindow("frmWind");
    QWidget& wind = *shown("frmWind");
    for (const char* box : {"txtWind(0)", "txtWind(1)", "txtWind(2)", "txtWind(3)"})
        type(wind, box, "12.5");
    EXPECT_THAT(alerts, ::testing::IsEmpty()) << "a word for every key";
    auto* picture = QAccessible::queryAccessibleInterface(&control(wind, "picWind"));
    ASSERT_NE(picture, nullptr);
    EXPECT_EQ(picture->role(), QAccessible::Graphic);
    EXPECT_EQ(picture->text(QAccessible::Description).toStdString(),
              "True wind from: ESE <109>; Force of the true wind: Beaufort 1 (2.7Kn)");
    EXPECT_EQ(picture->text(QAccessible::Name), control(wind, "picWind").accessibleName());
}

} // namespace
} // namespace korvel

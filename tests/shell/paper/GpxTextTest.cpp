// SPDX-License-Identifier: MIT
#include "shell/paper/GpxText.h"

#include <gmock/gmock.h>

#include <QStringList>
#include <QXmlStreamReader>

// What a chart program reads: every element in the namespace of GPX 1.1, in the order in which its
// schema wants them, nothing else.

namespace korvel
{
namespace
{

/// The elements as "rtept 35.5000000 -122.2500000", texts as "name=A & B".
QStringList elementsOf(const QByteArray& bytes)
{
    QStringList seen;
    QXmlStreamReader xml(bytes);
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isCharacters() && !xml.isWhitespace()) seen.back() += '=' + xml.text().toString();
        if (!xml.isStartElement()) continue;
        EXPECT_EQ(xml.namespaceUri().toString(), "http://www.topografix.com/GPX/1/1");
        QString element = xml.name().toString();
        for (const QXmlStreamAttribute& each : xml.attributes())
            element += ' ' + each.value().toString();
        seen << element;
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    return seen;
}

TEST(GpxText, isReadBackAsItWas)
{
    using NavFunc113::Degrees;
    ExportLine line{ExportLine::Kind::Route,
                    "A & B <C>",
                    {{Degrees(35.5), Degrees(-122.25), "Dep."}, {Degrees(-0.1), Degrees(180), ""}}};
    EXPECT_EQ(elementsOf(gpxText(line, "Korvel", 38425.40625)),
              QStringList({"gpx 1.1 Korvel", "rte", "name=A & B <C> 2005-03-14 09:45",
                           "rtept 35.5000000 -122.2500000", "name=Dep. 050314-0945",
                           "rtept -0.1000000 -180.0000000", "name=WP 2 050314-0945"}));
    line.kind = ExportLine::Kind::Track;
    line.points.front().UTC = 38425.40625;
    EXPECT_EQ(elementsOf(gpxText(line, "Korvel", 38425.40625)),
              QStringList({"gpx 1.1 Korvel", "trk", "name=A & B <C> 2005-03-14 09:45", "trkseg",
                           "trkpt 35.5000000 -122.2500000", "time=2005-03-14T09:45:00Z",
                           "name=Dep. 050314-0945", "trkpt -0.1000000 -180.0000000",
                           "name=WP 2 050314-0945"}));
}

} // namespace
} // namespace korvel

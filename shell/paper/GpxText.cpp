// SPDX-License-Identifier: MIT
#include "shell/paper/GpxText.h"

#include "app/reading/Format.h"
#include "shell/machine/AsQString.h"

#include <QXmlStreamWriter>

namespace korvel
{
namespace
{

constexpr int gpxDecimals = 7; // of a degree: a centimetre

QString decimalDegrees(NavFunc113::Degrees angle)
{
    return asQString(figure(angle, gpxDecimals));
}

void writePoint(QXmlStreamWriter& xml, const QString& element, const ExportLine::Point& point)
{
    xml.writeStartElement(element);
    xml.writeAttribute("lat", decimalDegrees(point.latitude));
    // The format wants a longitude below 180.
    const QString longitude = decimalDegrees(point.longitude);
    xml.writeAttribute("lon", longitude.startsWith("180.") ? '-' + longitude : longitude);
    if (point.UTC)
        xml.writeTextElement("time", asQString(Format(*point.UTC, "yyyy-mm-ddThh:mm:ss") + 'Z'));
    if (!point.name.empty()) xml.writeTextElement("name", asQString(point.name));
    xml.writeEndElement();
}

} // namespace

QByteArray gpxText(const ExportLine& line, const QString& creator)
{
    const bool isRoute = line.kind == ExportLine::Kind::Route;
    QByteArray bytes;
    QXmlStreamWriter xml(&bytes);
    xml.setAutoFormatting(true);
    xml.writeStartDocument();
    xml.writeStartElement("gpx");
    xml.writeDefaultNamespace("http://www.topografix.com/GPX/1/1");
    xml.writeAttribute("version", "1.1");
    xml.writeAttribute("creator", creator);
    xml.writeStartElement(isRoute ? "rte" : "trk");
    xml.writeTextElement("name", asQString(line.name));
    if (!isRoute) xml.writeStartElement("trkseg");
    for (const ExportLine::Point& point : line.points)
        writePoint(xml, isRoute ? "rtept" : "trkpt", point);
    xml.writeEndDocument();
    return bytes;
}

} // namespace korvel

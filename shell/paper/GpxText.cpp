// SPDX-License-Identifier: MIT
#include "shell/paper/GpxText.h"

#include "app/reading/Format.h"
#include "shell/machine/AsQString.h"

#include <QXmlStreamWriter>

#include <algorithm>

namespace korvel
{
namespace
{

constexpr int gpxDecimals = 7; // of a degree: a centimetre

QString decimalDegrees(NavFunc113::Degrees angle)
{
    return asQString(figure(angle, gpxDecimals));
}

/// The names of the points, each once.
std::vector<std::string> namesOf(const ExportLine& line, const std::string& stamp)
{
    std::vector<std::string> names;
    for (std::size_t i = 0; i < line.points.size(); ++i) {
        const std::string number = std::to_string(i + 1);
        const std::string& own = line.points[i].name;
        std::string name = own.empty() ? "WP " + number : own;
        name.append(" ").append(stamp);
        if (std::ranges::find(names, name) != names.end()) name += " no. " + number;
        names.push_back(std::move(name));
    }
    return names;
}

void writePoint(QXmlStreamWriter& xml, const QString& element, const ExportLine::Point& point,
                const std::string& name)
{
    xml.writeStartElement(element);
    xml.writeAttribute("lat", decimalDegrees(point.latitude));
    // The format wants a longitude below 180.
    const QString longitude = decimalDegrees(point.longitude);
    xml.writeAttribute("lon", longitude.startsWith("180.") ? '-' + longitude : longitude);
    if (point.UTC)
        xml.writeTextElement("time", asQString(Format(*point.UTC, "yyyy-mm-ddThh:mm:ss") + 'Z'));
    xml.writeTextElement("name", asQString(name));
    xml.writeEndElement();
}

} // namespace

QByteArray gpxText(const ExportLine& line, const QString& creator, NavFunc113::DateTime SMT)
{
    const std::string stamp = Format(SMT, "yymmdd-hhmm");
    const std::vector<std::string> names = namesOf(line, stamp);
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
    xml.writeTextElement("name", asQString(line.name + ' ' + Format(SMT, "yyyy-mm-dd hh:mm")));
    if (!isRoute) xml.writeStartElement("trkseg");
    for (std::size_t i = 0; i < line.points.size(); ++i)
        writePoint(xml, isRoute ? "rtept" : "trkpt", line.points[i], names[i]);
    xml.writeEndDocument();
    return bytes;
}

} // namespace korvel

// SPDX-License-Identifier: MIT
#include "routes/files/RouteFiles.h"

#include "routes/files/Gpx.h"
#include "routes/files/RtzReader.h"
#include "routes/route/RouteCsv.h"

#include <QXmlStreamReader>

#include <fstream>

namespace korvel
{
namespace
{

ReadRoute refused(const std::string& fault)
{
    return {{}, fault, {}};
}

std::string tooLarge()
{
    return "it is larger than " + std::to_string(mostRouteBytes / 1024 / 1024) +
           " MB, which no route is";
}

/// XML begins with "<", perhaps behind a byte-order mark and blanks; in UTF-16 with a mark.
bool looksLikeXml(std::string_view bytes)
{
    if (bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF")) return true;
    if (bytes.starts_with("\xEF\xBB\xBF")) bytes.remove_prefix(3);
    const std::size_t first = bytes.find_first_not_of(" \t\r\n");
    return first != std::string_view::npos && bytes[first] == '<';
}

/// Name of the first element; empty when there is none.
QString rootOf(std::string_view bytes)
{
    QXmlStreamReader reader(
        QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size())));
    while (!reader.atEnd()) {
        const auto token = reader.readNext();
        if (token == QXmlStreamReader::StartElement) return reader.name().toString();
        if (token == QXmlStreamReader::DTD) break;
    }
    return {};
}

} // namespace

ReadRoute readRoute(std::string_view bytes)
{
    if (bytes.size() > mostRouteBytes) return refused(tooLarge());
    if (!looksLikeXml(bytes)) return readRouteCsv(bytes);
    return rootOf(bytes) == QLatin1String("gpx") ? readGpx(bytes) : readRtz(bytes);
}

ReadRoute readRouteFile(const std::filesystem::path& file)
{
    std::error_code error;
    if (!std::filesystem::exists(file, error)) return refused("there is no such file");
    if (!std::filesystem::is_regular_file(file, error)) return refused("it is no ordinary file");
    if (std::filesystem::file_size(file, error) > mostRouteBytes || error)
        return refused(tooLarge());
    std::ifstream stream(file, std::ios::binary);
    // One byte more than allowed: a file may grow, or not say how large it is.
    std::string bytes(mostRouteBytes + 1, '\0');
    stream.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    bytes.resize(static_cast<std::size_t>(stream.gcount()));
    if (!stream && !stream.eof()) return refused("it cannot be read");
    return readRoute(bytes);
}

} // namespace korvel

// SPDX-License-Identifier: MIT
#include "routes/files/GuardedXml.h"

#include "routes/files/RouteXml.h"

#include <QByteArray>
#include <QXmlStreamWriter>

#include <algorithm>

namespace korvel
{
namespace
{

constexpr std::size_t deepest = 32;

std::string escaped(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()))
        .toHtmlEscaped()
        .toStdString();
}

} // namespace

GuardedXml::GuardedXml(std::string_view bytes)
    : m_reader(QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size())))
{
}

QXmlStreamReader::TokenType GuardedXml::next()
{
    if (isRefused()) return QXmlStreamReader::Invalid;
    if (m_reader.tokenType() == QXmlStreamReader::EndElement) {
        while (!m_declared.empty() && m_declared.back().depth >= m_open.size())
            m_declared.pop_back();
        m_open.pop_back();
    }
    const auto token = m_reader.readNext();
    if (token == QXmlStreamReader::StartElement) {
        m_open.push_back(m_reader.name().toString().toStdString());
        for (const auto& declaration : m_reader.namespaceDeclarations())
            m_declared.push_back({m_open.size(), declaration.prefix().toString().toStdString(),
                                  declaration.namespaceUri().toString().toStdString()});
        if (m_open.size() > deepest) refuse("elements are nested too deeply");
    }
    if (token == QXmlStreamReader::DTD) refuse("a document type (DOCTYPE) is not taken");
    if (token == QXmlStreamReader::Invalid) noteError();
    return isRefused() ? QXmlStreamReader::Invalid : token;
}

void GuardedXml::noteError()
{
    refuse(m_reader.error() == QXmlStreamReader::PrematureEndOfDocumentError
               ? std::string("the file ends before its end")
               : m_reader.errorString().toStdString());
}

bool GuardedXml::nextChild()
{
    for (auto token = next(); token != QXmlStreamReader::Invalid; token = next()) {
        if (token == QXmlStreamReader::StartElement) return true;
        if (token == QXmlStreamReader::EndElement || token == QXmlStreamReader::EndDocument)
            return false;
    }
    return false;
}

void GuardedXml::skip()
{
    while (nextChild())
        skip();
}

std::string GuardedXml::text()
{
    QString text;
    for (auto token = next(); token != QXmlStreamReader::Invalid; token = next()) {
        if (token == QXmlStreamReader::EndElement) break;
        if (token == QXmlStreamReader::Characters) text += m_reader.text();
        if (token == QXmlStreamReader::StartElement) skip();
    }
    return text.trimmed().toStdString();
}

std::string GuardedXml::element()
{
    const std::vector<Declaration> scope = m_declared;
    const std::size_t depth = m_open.size();
    QString copy;
    QXmlStreamWriter writer(&copy);
    copyToken(m_reader, writer);
    for (auto token = next(); token != QXmlStreamReader::Invalid; token = next()) {
        copyToken(m_reader, writer);
        if (token == QXmlStreamReader::EndElement && m_open.size() == depth) break;
    }
    std::string text = copy.toStdString();
    const std::size_t behindName = text.find_first_of(" />");
    std::string declarations;
    std::vector<std::string> known;
    for (auto each = scope.rbegin(); each != scope.rend(); ++each) {
        if (std::ranges::find(known, each->prefix) != known.end()) continue;
        known.push_back(each->prefix);
        if (each->depth == depth) continue; // its own
        if (!each->prefix.empty() && text.find(each->prefix + ":") != std::string::npos)
            declarations += " xmlns:" + each->prefix + "=\"" + escaped(each->uri) + "\"";
    }
    return behindName == std::string::npos ? text : text.insert(behindName, declarations);
}

bool GuardedXml::attribute(const char* name, std::string& value) const
{
    const auto attributes = m_reader.attributes();
    if (!attributes.hasAttribute(QLatin1String(name))) return false;
    value = attributes.value(QLatin1String(name)).toString().toStdString();
    return true;
}

std::vector<std::pair<std::string, std::string>> GuardedXml::attributes() const
{
    std::vector<std::pair<std::string, std::string>> all;
    for (const auto& declaration : m_reader.namespaceDeclarations())
        if (!declaration.prefix().isEmpty())
            all.emplace_back("xmlns:" + declaration.prefix().toString().toStdString(),
                             declaration.namespaceUri().toString().toStdString());
    for (const auto& attribute : m_reader.attributes())
        all.emplace_back(attribute.qualifiedName().toString().toStdString(),
                         attribute.value().toString().toStdString());
    return all;
}

void GuardedXml::refuse(const std::string& why)
{
    if (isRefused()) return;
    m_fault = "line " + std::to_string(line());
    if (!m_open.empty()) m_fault += ", " + m_open.back();
    m_fault += ": " + why;
}

} // namespace korvel

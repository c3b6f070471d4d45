// SPDX-License-Identifier: MIT
#include "routes/files/RouteXml.h"

#include <QXmlStreamReader>

namespace korvel
{
namespace
{

/// Without the signs that no XML may have.
QString written(const std::string& text)
{
    QString clean = QString::fromStdString(text);
    clean.removeIf([](QChar each) {
        return (each < QChar(0x20) && each != '\t' && each != '\n' && each != '\r') ||
               each == QChar(0xFFFE) || each == QChar(0xFFFF);
    });
    return clean;
}

} // namespace

void copyToken(const QXmlStreamReader& reader, QXmlStreamWriter& writer)
{
    switch (reader.tokenType()) {
    case QXmlStreamReader::StartElement:
        writer.writeStartElement(reader.qualifiedName().toString());
        for (const auto& declaration : reader.namespaceDeclarations())
            writer.writeAttribute(declaration.prefix().isEmpty()
                                      ? QString("xmlns")
                                      : "xmlns:" + declaration.prefix().toString(),
                                  declaration.namespaceUri().toString());
        for (const auto& attribute : reader.attributes())
            writer.writeAttribute(attribute.qualifiedName().toString(),
                                  attribute.value().toString());
        break;
    case QXmlStreamReader::EndElement:
        writer.writeEndElement();
        break;
    case QXmlStreamReader::Characters:
        writer.writeCharacters(reader.text().toString());
        break;
    case QXmlStreamReader::Comment:
        writer.writeComment(reader.text().toString());
        break;
    default:
        break;
    }
}

RouteXml::RouteXml() : m_writer(&m_bytes)
{
    m_writer.setAutoFormatting(true);
    m_writer.writeStartDocument();
}

void RouteXml::start(const char* name)
{
    m_writer.writeStartElement(name);
}

void RouteXml::end()
{
    m_writer.writeEndElement();
}

void RouteXml::attribute(const std::string& name, const std::string& value)
{
    m_writer.writeAttribute(QString::fromStdString(name), written(value));
}

void RouteXml::textElement(const char* name, const std::string& text)
{
    m_writer.writeTextElement(name, written(text));
}

void RouteXml::element(const std::string& kept)
{
    QXmlStreamReader reader(QByteArray::fromStdString(kept));
    reader.setNamespaceProcessing(false);
    // A blank between its texts may matter to whoever wrote it.
    m_writer.setAutoFormatting(false);
    while (!reader.atEnd() && reader.readNext() != QXmlStreamReader::Invalid)
        copyToken(reader, m_writer);
    m_writer.setAutoFormatting(true);
}

std::string RouteXml::bytes()
{
    m_writer.writeEndDocument();
    return m_bytes.toStdString();
}

} // namespace korvel

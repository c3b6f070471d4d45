// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QXmlStreamWriter>

#include <string>

class QXmlStreamReader;

namespace korvel
{

/// Writes the token that a reader stands at, names as they are written in the file.
void copyToken(const QXmlStreamReader& reader, QXmlStreamWriter& writer);

/// The toolkit's XML writer for texts of the program, and for elements that were kept.
class RouteXml
{
public:
    RouteXml();

    void start(const char* name);
    void end();
    void attribute(const std::string& name, const std::string& value);
    void textElement(const char* name, const std::string& text);
    /// An element as GuardedXml::element() gave it.
    void element(const std::string& kept);

    std::string bytes();

private:
    QByteArray m_bytes;
    QXmlStreamWriter m_writer;
};

} // namespace korvel

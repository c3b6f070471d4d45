// SPDX-License-Identifier: MIT
#pragma once

#include <QXmlStreamReader>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace korvel
{

/// The toolkit's XML reader for files of others: no document type (and so no entities of one's own,
/// external or growing ones), elements no deeper than any route has them, and one fault, the
/// first, which names line and element and ends the reading.
class GuardedXml
{
public:
    /// @param bytes outlive the reader
    explicit GuardedXml(std::string_view bytes);

    /// Goes on to the next element within the current one.
    /// @return false behind the last, and after a fault
    bool nextChild();
    /// Passes over the current element with all that is in it.
    void skip();
    /// The text of the current element, which has no elements in it.
    std::string text();
    /// The current element with all that is in it, to be written back: it declares whatever
    /// prefixes it uses itself.
    std::string element();

    std::string name() const { return m_open.empty() ? std::string() : m_open.back(); }
    bool isNamed(const char* name) const { return m_reader.name() == QLatin1String(name); }
    std::string namespaceUri() const { return m_reader.namespaceUri().toString().toStdString(); }
    int line() const { return static_cast<int>(m_reader.lineNumber()); }

    /// An attribute without prefix. @return false when the element has none of that name
    bool attribute(const char* name, std::string& value) const;
    /// All attributes and declarations of the element, as they are written.
    std::vector<std::pair<std::string, std::string>> attributes() const;

    void refuse(const std::string& why);
    bool isRefused() const { return !m_fault.empty(); }
    /// "line 7, waypoint: no id"
    const std::string& fault() const { return m_fault; }

private:
    QXmlStreamReader::TokenType next();
    void noteError();

    struct Declaration {
        std::size_t depth;
        std::string prefix; ///< empty: the namespace of names without one
        std::string uri;
    };

    QXmlStreamReader m_reader;
    std::vector<std::string> m_open; ///< names of the elements around the current token
    std::vector<Declaration> m_declared;
    std::string m_fault;
};

} // namespace korvel

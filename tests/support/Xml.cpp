#include "support/Xml.h"

#include <libxml/parser.h>
#include <libxml/xpath.h>

#include <stdexcept>

namespace support {

namespace {

std::string trimmed(const std::string& text) {
  const char* const blanks = " \n\t";
  const std::size_t begin = text.find_first_not_of(blanks);
  if (begin == std::string::npos) return "";
  return text.substr(begin, text.find_last_not_of(blanks) - begin + 1);
}

using Result = std::unique_ptr<xmlXPathObject, void (*)(xmlXPathObjectPtr)>;

Result evaluate(xmlDoc* document, const std::string& path) {
  const std::unique_ptr<xmlXPathContext, void (*)(xmlXPathContextPtr)> context(
      xmlXPathNewContext(document), xmlXPathFreeContext);
  Result result(
      xmlXPathEvalExpression(reinterpret_cast<const xmlChar*>(path.c_str()), context.get()),
      xmlXPathFreeObject);
  if (!result) throw std::runtime_error("no XPath: " + path);
  return result;
}

}  // namespace

Xml::Xml(const std::string& text)
    : document(xmlReadMemory(text.data(), static_cast<int>(text.size()), nullptr, nullptr,
                             XML_PARSE_NOERROR | XML_PARSE_NOWARNING),
               xmlFreeDoc) {
  if (document) return;
  const xmlError* error = xmlGetLastError();
  throw std::runtime_error(error == nullptr ? "no document" : error->message);
}

int Xml::count(const std::string& path) const {
  return static_cast<int>(texts(path).size());
}

std::vector<std::string> Xml::texts(const std::string& path) const {
  const Result result = evaluate(document.get(), path);
  std::vector<std::string> found;
  const xmlNodeSet* nodes = result->nodesetval;
  for (int i = 0; nodes != nullptr && i < nodes->nodeNr; ++i) {
    xmlChar* content = xmlNodeGetContent(nodes->nodeTab[i]);
    found.push_back(trimmed(reinterpret_cast<const char*>(content)));
    xmlFree(content);
  }
  return found;
}

}  // namespace support

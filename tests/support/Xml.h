// An XML document as a conforming parser sees it.
//
//   const support::Xml document(support::readFile("run.xdmf"));
//   EXPECT_EQ(document.count("/Xdmf/Domain/Grid/Grid"), 2);
#pragma once

#include <memory>
#include <string>
#include <vector>

struct _xmlDoc;  // NOLINT(bugprone-reserved-identifier): of the library

namespace support {

class Xml {
 public:
  /// @throws std::runtime_error with the parser's words if the text is not well-formed.
  explicit Xml(const std::string& text);

  /// Nodes at an XPath.
  int count(const std::string& path) const;
  /// The texts of the nodes at an XPath, in the order of the document, without blanks around them.
  std::vector<std::string> texts(const std::string& path) const;

 private:
  std::shared_ptr<_xmlDoc> document;
};

}  // namespace support

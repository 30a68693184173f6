// Builds an XDMF 2 document as text in memory, element by element, and saves it when told to.
//
//   dataio::SimpleXdmf xdmf;              // the element Xdmf is open
//   xdmf.setVersion("2.0");
//   xdmf.beginElement("Domain");
//   xdmf.beginElement("UnstructuredTopology");
//   xdmf.addType("Triangle");
//   xdmf.endElement("UnstructuredTopology");
//   xdmf.endElement("Domain");
//   xdmf.generate("run.xdmf");
//
// The builder streams: a start tag stays open for attributes until the next element, item or end.
// It knows the names and values of the format. A wrong one is reported on standard error and the
// attribute is left out; nothing is thrown. Characters that XML keeps for itself are escaped.
#pragma once

#include <string>
#include <vector>

namespace dataio {

class SimpleXdmf {
 public:
  /// Begins with the header and the element Xdmf.
  SimpleXdmf();

  /// @param tag DataItem, Grid, StructuredTopology, UnstructuredTopology, Geometry, Attribute, Set,
  ///        Time, Information or Domain; both topologies are written as Topology
  void beginElement(const std::string& tag);
  void endElement(const std::string& tag);
  void endDataItem() { endElement("DataItem"); }

  /// The type of the current element, as GridType for a Grid; an empty one is ignored.
  void addType(const std::string& type);
  /// An empty name is ignored.
  void setName(const std::string& name);
  template <class... Sizes>
  void setDimensions(const int& first, const Sizes&... further);
  /// Of a DataItem: XML, HDF or Binary.
  void setFormat(const std::string& format);

  // Each of these belongs to an element, named behind it.
  void setVersion(const std::string& version);      ///< Xdmf
  void setCollectionType(const std::string& type);  ///< Grid; Temporal
  void setValue(const std::string& value);          ///< Time, Information
  void setCenter(const std::string& center);        ///< Attribute; Node, Edge, Face, Cell, Grid
  void setFunction(const std::string& function);    ///< DataItem; $n is its item n
  void setNumberType(const std::string& type);      ///< DataItem; Float, Int, UInt, Char, UChar
  void setPrecision(const int& bytes);              ///< DataItem; bytes of a number
  void setNumberOfElements(const int& count);       ///< Topology
  void setReference(const std::string& path);       ///< Topology, Geometry; not checked

  /// Text on a line of its own within the current element.
  void addItem(const std::string& text);
  /// Includes the elements at an XPath of this document, for readers that resolve inclusions.
  void addInclude(const std::string& path);

  /// Closes the start tag that is open, if there is one.
  void commitBuffer();

  /// Writes the document and replaces an earlier file. The first call ends the document. A file
  /// that cannot be opened is passed over in silence.
  void generate(const std::string& file);

  /// Xdmf, or anything else for text between tags.
  void setCurrentTag(const std::string& tag);
  /// The name under which the current element is written.
  std::string getCurrentTagString() const;

 private:
  void indent();
  void addAttribute(const std::string& name, const std::string& value);
  void addLine(const std::string& line);
  bool isCurrentTag(int tag, const char* setter, const char* owner) const;
  void addChecked(const std::string& attribute, const std::string& value,
                  const std::vector<std::string>& legal, const std::string& what,
                  const std::string& setter);

  std::string document;
  std::string pending;  ///< the line under construction
  bool finished = false;
  int depth = -1;
  int currentTag = -1;
};

template <class... Sizes>
void SimpleXdmf::setDimensions(const int& first, const Sizes&... further) {
  std::string text = std::to_string(first);
  ((text += " " + std::to_string(further)), ...);
  addAttribute("Dimensions", text);
}

}  // namespace dataio

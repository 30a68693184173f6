#include "dataio/SimpleXdmf.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <iostream>

namespace dataio {

namespace {

constexpr const char* HEADER =
    "<?xml version=\"1.0\" ?>\n"
    "<!DOCTYPE Xdmf SYSTEM \"Xdmf.dtd\" []>\n";
constexpr const char* INDENTATION = "    ";

enum Tag {
  DataItem,
  Grid,
  StructuredTopology,
  UnstructuredTopology,
  Geometry,
  Attribute,
  Set,
  Time,
  Information,
  Domain,
  Xdmf,
  Inner
};

struct TagRow {
  const char* key;   ///< by which an element is begun
  const char* text;  ///< as it is written
  std::vector<std::string> types;
};

// clang-format off
const std::array<TagRow, 12> TAGS = {{
  {"DataItem",             "DataItem",    {"Uniform", "Collection", "Tree", "HyperSlab", "Coordinates", "Function"}},
  {"Grid",                 "Grid",        {"Uniform", "Collection", "Tree", "Subset"}},
  {"StructuredTopology",   "Topology",    {"2DSMesh", "2DRectMesh", "2DCoRectMesh", "3DSMesh", "3DRectMesh", "3DCoRectMesh"}},
  {"UnstructuredTopology", "Topology",    {"Polyvertex", "Polyline", "Polygon", "Triangle", "Quadrilateral", "Tetrahedron",
                                           "Pyramid", "Wedge", "Hexahedron", "Edge_3", "Tri_6", "Quad_8", "Tet_10",
                                           "Pyramid_13", "Wedge_15", "Hex_20", "Mixed"}},
  {"Geometry",             "Geometry",    {"XYZ", "XY", "X_Y_Z", "VXVYVZ", "ORIGIN_DXDYDZ", "ORIGIN_DXDY"}},
  {"Attribute",            "Attribute",   {"Scalar", "Vector", "Tensor", "Tensor6", "Matrix"}},
  {"Set",                  "Set",         {"Node", "Edge", "Face", "Cell"}},
  {"Time",                 "Time",        {"Single", "HyperSlab", "List", "Range"}},
  {"Information",          "Information", {}},
  {"Domain",               "Domain",      {}},
  {"Xdmf",                 "Xdmf",        {}},
  {"Inner",                "Inner",       {}},
}};

const std::vector<std::string> COLLECTION_TYPES = {"Temporal"};
const std::vector<std::string> CENTERS          = {"Node", "Edge", "Face", "Cell", "Grid"};
const std::vector<std::string> FORMATS          = {"XML", "HDF", "Binary"};
const std::vector<std::string> NUMBER_TYPES     = {"Float", "Int", "UInt", "Char", "UChar"};
// clang-format on

bool isKnown(const std::string& value, const std::vector<std::string>& table) {
  return std::find(table.begin(), table.end(), value) != table.end();
}

void report(const std::string& message) {
  std::cerr << "[SIMPLE XDMF ERROR] " << message << std::endl;
}

std::string escaped(const std::string& text) {
  std::string result;
  for (const char c : text) {
    switch (c) {
      case '&':
        result += "&amp;";
        break;
      case '<':
        result += "&lt;";
        break;
      case '"':
        result += "&quot;";
        break;
      default:
        result += c;
    }
  }
  return result;
}

std::string writtenName(const std::string& tag) {
  return tag == "StructuredTopology" || tag == "UnstructuredTopology" ? "Topology" : tag;
}

}  // namespace

SimpleXdmf::SimpleXdmf() : document(HEADER) {
  beginElement("Xdmf");
}

void SimpleXdmf::setCurrentTag(const std::string& tag) {
  currentTag = tag == "Xdmf" ? Xdmf : Inner;
}

std::string SimpleXdmf::getCurrentTagString() const {
  if (currentTag < 0 || currentTag >= static_cast<int>(TAGS.size())) return "";
  return TAGS.at(static_cast<std::size_t>(currentTag)).text;
}

// -- elements -------------------------------------------------------------------------------------

void SimpleXdmf::indent() {
  for (int level = 0; level < depth; ++level) pending += INDENTATION;
}

void SimpleXdmf::commitBuffer() {
  if (!pending.empty()) document += pending + ">\n";
  pending.clear();
}

void SimpleXdmf::beginElement(const std::string& tag) {
  commitBuffer();
  ++depth;
  indent();
  const auto* row = std::find_if(TAGS.begin(), TAGS.begin() + Xdmf,
                                 [&](const TagRow& r) { return tag == r.key; });
  if (row == TAGS.begin() + Xdmf) {
    setCurrentTag(tag);
  } else {
    currentTag = static_cast<int>(row - TAGS.begin());
  }
  pending += "<" + getCurrentTagString();
}

void SimpleXdmf::endElement(const std::string& tag) {
  commitBuffer();
  indent();
  document += pending + "</" + writtenName(tag) + ">\n";
  pending.clear();
  --depth;
}

void SimpleXdmf::addLine(const std::string& line) {
  commitBuffer();
  ++depth;
  indent();
  setCurrentTag("Inner");
  document += pending + line + "\n";
  pending.clear();
  --depth;
}

void SimpleXdmf::addItem(const std::string& text) {
  addLine(escaped(text));
}

void SimpleXdmf::addInclude(const std::string& path) {
  addLine("<include xmlns=\"http://www.w3.org/2001/XInclude\" xpointer=\"xpointer(" +
          escaped(path) + ")\"/>");
}

void SimpleXdmf::generate(const std::string& file) {
  if (!finished) {
    endElement("Xdmf");
    finished = true;
  }
  std::ofstream stream(file, std::ios::trunc);
  stream << document;
}

// -- attributes -----------------------------------------------------------------------------------

void SimpleXdmf::addAttribute(const std::string& name, const std::string& value) {
  pending += " " + name + "=\"" + escaped(value) + "\"";
}

bool SimpleXdmf::isCurrentTag(int tag, const char* setter, const char* owner) const {
  if (currentTag == tag) return true;
  report(std::string(setter) + "() cannot be called when current Tag is not " + owner + ".");
  return false;
}

void SimpleXdmf::addChecked(const std::string& attribute, const std::string& value,
                            const std::vector<std::string>& legal, const std::string& what,
                            const std::string& setter) {
  if (!isKnown(value, legal)) {
    report("Invalid " + what + " type = " + value + " is passed to " + setter + "().");
    return;
  }
  addAttribute(attribute, value);
}

void SimpleXdmf::addType(const std::string& type) {
  if (type.empty() || currentTag > Time) return;
  const std::string tag = getCurrentTagString();
  if (!isKnown(type, TAGS.at(static_cast<std::size_t>(currentTag)).types)) {
    report("Invalid " + tag + " type = " + type + " is passed to.");
    return;
  }
  addAttribute((tag == "DataItem" ? "Item" : tag) + "Type", type);
}

void SimpleXdmf::setName(const std::string& name) {
  if (!name.empty()) addAttribute("Name", name);
}

void SimpleXdmf::setFormat(const std::string& format) {
  addChecked("Format", format, FORMATS, "Format", "setFormat");
}

void SimpleXdmf::setVersion(const std::string& version) {
  if (isCurrentTag(Xdmf, "setVersion", "Xdmf")) addAttribute("Version", version);
}

void SimpleXdmf::setCollectionType(const std::string& type) {
  if (!isCurrentTag(Grid, "setCollectionType", "Grid")) return;
  addChecked("CollectionType", type, COLLECTION_TYPES, "Collection", "setCollectionType");
}

void SimpleXdmf::setValue(const std::string& value) {
  if (currentTag == Time || isCurrentTag(Information, "setValue", "Time and Information")) {
    addAttribute("Value", value);
  }
}

void SimpleXdmf::setCenter(const std::string& center) {
  if (!isCurrentTag(Attribute, "setCenter", "Attribute")) return;
  addChecked("Center", center, CENTERS, "Center", "setCenter");
}

void SimpleXdmf::setFunction(const std::string& function) {
  if (isCurrentTag(DataItem, "setFunction", "DataItem")) addAttribute("Function", function);
}

void SimpleXdmf::setNumberType(const std::string& type) {
  if (!isCurrentTag(DataItem, "setNumberType", "DataItem")) return;
  addChecked("NumberType", type, NUMBER_TYPES, "Number", "setNumberType");
}

void SimpleXdmf::setPrecision(const int& bytes) {
  if (!isCurrentTag(DataItem, "setPrecision", "DataItem")) return;
  addAttribute("Precision", std::to_string(bytes));
}

void SimpleXdmf::setNumberOfElements(const int& count) {
  if (!isCurrentTag(UnstructuredTopology, "setNumberOfElements", "Topology")) return;
  addAttribute("NumberOfElements", std::to_string(count));
}

void SimpleXdmf::setReference(const std::string& path) {
  addAttribute("Reference", path);
}

}  // namespace dataio

#include "setup/mesh/Reader2dm.h"

#include <limits>
#include <optional>
#include <set>
#include <string_view>
#include <unordered_map>

#include "common/console.h"
#include "setup/study/document/text_files.h"

namespace console = common::console;

namespace setup {

namespace {

/// Cards of elements are E, the number of nodes and a letter for the shape.
bool isElementCard(std::string_view card) {
  constexpr std::string_view digits = "0123456789";
  return card.size() >= 3 && card.front() == 'E' && digits.find(card[1]) != std::string_view::npos;
}

bool isComment(std::string_view word) {
  return word.front() == '#' || word.front() == '!';
}

class Reader2dm {
 public:
  explicit Reader2dm(const std::string& file) { mesh.file = file; }

  Mesh read() {
    const std::optional<std::string> text = readTextFile(mesh.file);
    if (!text) console::fail(place(mesh.file, 0), "the file cannot be read");
    forEachLine(*text, [this](int number, std::string_view content) {
      line = number;
      splitWords(content, words);
      if (!words.empty() && !isComment(words.front())) readCard();
    });
    requireEndOfString();
    if (mesh.cells.empty()) {
      console::fail(place(mesh.file, 0), "the mesh is empty: there is no triangle (card E3T)");
    }
    resolveNodes();
    tellSkippedCards();
    return std::move(mesh);
  }

 private:
  template <class... Parts>
  [[noreturn]] void refuse(int where, const Parts&... parts) const {
    console::fail(place(mesh.file, where), parts...);
  }

  void readCard() {
    const std::string_view card = words.front();
    if (!hasHeader) {
      if (card != "MESH2D") {
        refuse(line, "the first card is <", card, ">, but a 2dm file begins with MESH2D");
      }
      hasHeader = true;
      return;
    }
    if (card != "NS") requireEndOfString();
    if (card == "ND") {
      readNode();
    } else if (card == "E3T") {
      readTriangle();
    } else if (card == "NS") {
      readString();
    } else if (isElementCard(card)) {
      refuse(line, "element card <", card, "> is not supported, cells are triangles (card E3T)");
    } else {
      skippedCards.insert(std::string(card));
    }
  }

  void readNode() {
    requireWords(5, "ND id x y z");
    Node node;
    node.id = readId(words[1], "node id");
    node.x = readNumber(words[2], "x");
    node.y = readNumber(words[3], "y");
    node.z = readNumber(words[4], "z");
    node.line = line;
    const auto [found, isNew] = nodePositions.emplace(node.id, static_cast<int>(mesh.nodes.size()));
    if (!isNew) {
      refuse(line, "node ", node.id, " is defined again, first on line ",
             mesh.nodes[static_cast<std::size_t>(found->second)].line);
    }
    mesh.nodes.push_back(node);
  }

  void readTriangle() {
    requireWords(6, "E3T id n1 n2 n3 material");
    Triangle cell;
    cell.id = readId(words[1], "element id");
    std::array<long, 3> ids{};
    for (std::size_t k = 0; k < 3; ++k) ids[k] = readId(words[2 + k], "node id");
    cell.material = static_cast<int>(readInteger(words[5], "material"));
    cell.line = line;
    const auto [found, isNew] = cellLines.emplace(cell.id, line);
    if (!isNew) {
      refuse(line, "element ", cell.id, " is defined again, first on line ", found->second);
    }
    mesh.cells.push_back(cell);
    cellNodeIds.push_back(ids);
  }

  void readString() {
    requireWords(2, "NS n1 n2 ... -nk name");
    if (!isInString) {
      mesh.strings.push_back({"", {}, line});
      stringNodeIds.emplace_back();
      isInString = true;
    }
    for (std::size_t k = 1; k < words.size() && isInString; ++k) {
      const long id = readInteger(words[k], "node id");
      if (id == 0) refuse(line, "node id 0 is not possible, ids begin at 1");
      stringNodeIds.back().push_back({id < 0 ? -id : id, line});
      if (id < 0) endString(k + 1);
    }
  }

  /// The words from `first` on are the name; without one the string is named by its number.
  void endString(std::size_t first) {
    std::string name;
    for (std::size_t k = first; k < words.size(); ++k) {
      name += (k > first ? " " : "") + std::string(words[k]);
    }
    if (name.size() >= 2 && name.front() == '"' && name.back() == '"') {
      name = name.substr(1, name.size() - 2);
    }
    NodeString& string = mesh.strings.back();
    string.name = name.empty() ? std::to_string(mesh.strings.size()) : name;
    if (stringNodeIds.back().size() < 2) {
      refuse(line, "nodestring <", string.name, "> has one node, it needs two at least");
    }
    if (!stringNames.insert(string.name).second) {
      refuse(line, "there is another nodestring <", string.name, "> before");
    }
    isInString = false;
  }

  void requireEndOfString() const {
    if (!isInString) return;
    refuse(mesh.strings.back().line, "the nodestring is not ended by a negative node id");
  }

  void requireWords(std::size_t count, const char* form) const {
    if (words.size() < count) refuse(line, "the card is too short, it should read: ", form);
  }

  long readInteger(std::string_view word, const char* meaning) const {
    const std::optional<long> value = toInteger(word);
    constexpr long limit = std::numeric_limits<int>::max();
    if (!value) refuse(line, "<", word, "> is not a whole number, but stands for the ", meaning);
    if (*value > limit || *value < -limit) {
      refuse(line, meaning, " ", word, " is beyond the largest number possible, ", limit);
    }
    return *value;
  }

  long readId(std::string_view word, const char* meaning) const {
    const long id = readInteger(word, meaning);
    if (id < 1) refuse(line, meaning, " ", id, " is not possible, ids begin at 1");
    return id;
  }

  double readNumber(std::string_view word, const char* meaning) const {
    const std::optional<double> value = toNumber(word);
    if (!value) refuse(line, "<", word, "> is not a number, but stands for ", meaning);
    return *value;
  }

  /// `user` is what refers to the node; it is only put into words if the node is missing.
  template <class... User>
  int positionOf(long id, int where, const User&... user) const {
    const auto found = nodePositions.find(id);
    if (found == nodePositions.end()) {
      refuse(where, user..., " refers to node ", id, ", which the file does not define");
    }
    return found->second;
  }

  /// Cards may refer to nodes that are defined further down.
  void resolveNodes() {
    for (std::size_t c = 0; c < mesh.cells.size(); ++c) {
      Triangle& cell = mesh.cells[c];
      for (std::size_t k = 0; k < 3; ++k) {
        cell.nodes[k] = positionOf(cellNodeIds[c][k], cell.line, "element ", cell.id);
      }
    }
    for (std::size_t s = 0; s < mesh.strings.size(); ++s) {
      NodeString& string = mesh.strings[s];
      for (const auto& [id, where] : stringNodeIds[s]) {
        string.nodes.push_back(positionOf(id, where, "nodestring <", string.name, ">"));
      }
    }
  }

  void tellSkippedCards() const {
    if (skippedCards.empty()) return;
    std::string names;
    for (const std::string& card : skippedCards) names += (names.empty() ? "" : ", ") + card;
    console::info(place(mesh.file, 0), "passed over cards that are of no use here: ", names);
  }

  struct StringNode {
    long id;
    int line;
  };

  Mesh mesh;
  int line = 0;
  std::vector<std::string_view> words;
  bool hasHeader = false;
  bool isInString = false;
  std::unordered_map<long, int> nodePositions;
  std::unordered_map<long, int> cellLines;
  std::vector<std::array<long, 3>> cellNodeIds;
  std::vector<std::vector<StringNode>> stringNodeIds;
  std::set<std::string> stringNames;
  std::set<std::string> skippedCards;
};

}  // namespace

Mesh readMesh2dm(const std::string& file) {
  return Reader2dm(file).read();
}

}  // namespace setup

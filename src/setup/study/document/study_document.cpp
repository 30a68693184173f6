#include "setup/study/document/study_document.h"

#include <iostream>
#include <optional>
#include <set>
#include <sstream>
#include <vector>

#include "common/console.h"
#include "jsv/StreamValidator.h"
#include "jsv/annotations/Pointer.h"
#include "setup/study/document/text_files.h"

namespace console = common::console;
using nlohmann::json;

namespace setup {

namespace {

/// Follows the parser, since the finished document holds the last of several equal keys only.
class DoubleKeys {
 public:
  using Event = json::parse_event_t;

  explicit DoubleKeys(const std::string& newFile) : file(newFile) {}

  void see(Event event, const json& item) {
    if (event == Event::key) {
      enter(item.get<std::string>());
    } else if (event == Event::object_end || event == Event::array_end) {
      open.pop_back();
    } else {
      countItem();
      if (event != Event::value) open.push_back({.isList = event == Event::array_start});
    }
  }

 private:
  struct Container {
    bool isList = false;
    std::size_t items = 0;            ///< of a list, so far
    std::string name = {};            ///< of the item that is being read
    std::set<std::string> keys = {};  ///< of a group, so far
  };

  void countItem() {
    if (!open.empty() && open.back().isList) open.back().name = std::to_string(open.back().items++);
  }

  void enter(const std::string& name) {
    open.back().name = name;
    if (open.back().keys.insert(name).second) return;
    jsv::JsonPointer place;
    for (const Container& container : open) place.push_back(container.name);
    console::fail("study file <", file, ">: key <", jsv::toText(place),
                  "> stands twice in one group");
  }

  const std::string& file;
  std::vector<Container> open;  ///< from the outside to the inside
};

json parse(const std::string& file, const std::string& text) {
  DoubleKeys doubleKeys(file);
  const auto watch = [&doubleKeys](int /*depth*/, DoubleKeys::Event event, const json& item) {
    doubleKeys.see(event, item);
    return true;
  };
  try {
    return json::parse(text, watch);
  } catch (const json::exception& fault) {
    console::fail("study file <", file, "> is not a JSON document: ", fault.what());
  }
}

void requireSchema(const std::string& file, const std::string& text) {
  std::istringstream document(text);
  std::istringstream schema(studySchema());
  const int verdict = jsv::StreamValidator(&std::cout).validate(document, schema);
  if (verdict == 0) return;
  console::fail("Terminating setup due to JSON validation errors in study file <", file, ">",
                verdict == 1 ? ": a study must not hold keys that are not used." : ".");
}

/// Nothing empty means anything in a study; a group that has lost its keys is likely a slip.
void refuseEmpty(const std::string& file, const json& document) {
  const json places = document.flatten();  // turns empty groups and lists into null
  for (const auto& [place, value] : places.items()) {
    const bool isEmptyText = value.is_string() && value.get_ref<const std::string&>().empty();
    if (value.is_null() || isEmptyText) {
      console::fail("study file <", file, ">: key <", place, "> must not be empty");
    }
  }
}

}  // namespace

json readStudyDocument(const std::string& file) {
  const std::optional<std::string> text = readTextFile(file);
  if (!text) console::fail("study file <", file, "> cannot be read");
  json document = parse(file, *text);
  requireSchema(file, *text);
  refuseEmpty(file, document);
  return document;
}

}  // namespace setup

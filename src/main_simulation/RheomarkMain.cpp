#include "main_simulation/RheomarkMain.h"

#include <exception>
#include <fstream>
#include <iostream>
#include <sstream>
#include <vector>

#include "common/console.h"
#include "common/process.h"
#include "jsv/StreamValidator.h"

namespace console = common::console;

namespace {

[[noreturn]] void failForArgument(const TCLAP::ArgException& exception) {
  console::fail("error: ", exception.error(), " for arg ", exception.argId());
}

}  // namespace

RheomarkMain::RheomarkMain(const char* name)
    : RheomarkCmdLine(std::string("This is the '") + name + "' binary of the RHEOMARK framework.") {
}

void RheomarkMain::parseCmdLine(int argc, char** argv) {
  try {
    addArguments();
    std::vector<std::string> arguments(argv, argv + argc);
    parse(arguments);
  } catch (const TCLAP::ArgException& exception) {
    failForArgument(exception);
  }
}

int RheomarkMain::go() {
  try {
    if (checkForValidation()) validateJSONfile(getJsonFile(), schema);
    executionContent();
  } catch (const TCLAP::ArgException& exception) {
    failForArgument(exception);
  } catch (const std::exception& exception) {
    common::endFailed(exception);
  }
  return 0;
}

void RheomarkMain::validateJSONfile(const std::string& file, const char* schemaText) {
  std::ifstream document(file);
  if (!document) console::fail("configuration file not found: ", file);
  std::istringstream schemaStream(schemaText);
  const jsv::StreamValidator validator(&std::cout);
  if (validator.validate(document, schemaStream) == 2) {
    console::fail("Terminating RHEOMARK due to JSON validation errors.");
  }
}

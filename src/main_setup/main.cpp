// The executable that turns a study document into a run file.

#include <tclap/CmdLine.h>

#include <string>

#include "common/console.h"
#include "common/process.h"
#include "common/version.h"
#include "setup/Setup.h"

namespace console = common::console;

namespace {

struct Arguments {
  std::string study;
  std::string runFile;
};

/// Ends the process for --help, --version and arguments that are not understood.
Arguments parse(int argc, char** argv) {
  TCLAP::CmdLine line("This is the 'setup' binary of the RHEOMARK framework.", ' ',
                      common::VERSION);
  TCLAP::ValueArg<std::string> file("f", "file", "the study document", true, "", "string", line);
  TCLAP::ValueArg<std::string> output("o", "output",
                                      "name of the run file to be written (must end in .h5)", false,
                                      "run.h5", "string", line);
  line.parse(argc, argv);
  return {file.getValue(), output.getValue()};
}

}  // namespace

int main(int argc, char** argv) {
  common::startProcess();
  console::printHeader("sequential");
  try {
    const Arguments arguments = parse(argc, argv);
    setup::makeRunFile(arguments.study, arguments.runFile);
    console::printFooter();
    common::requireStandardOutput();
  } catch (const std::exception& fault) {
    common::endFailed(fault);
  }
  return 0;
}

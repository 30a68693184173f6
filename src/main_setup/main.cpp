// The executable that turns a study document into a run file.

#include <tclap/CmdLine.h>

#include <cstdlib>
#include <string>

#include "common/BaseException.h"
#include "common/console.h"
#include "common/standard_streams.h"
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
  common::openStandardStreams();
  // Some network file systems know no locks; a value that the user has set is kept.
  setenv("HDF5_USE_FILE_LOCKING", "FALSE", 0);
  console::printHeader("sequential");
  try {
    const Arguments arguments = parse(argc, argv);
    setup::makeRunFile(arguments.study, arguments.runFile);
  } catch (const BaseException& fault) {
    console::error(fault.what());
    return 1;
  } catch (const std::exception& fault) {
    console::error("unhandled exception (actually, this should never happen)");
    console::error(fault.what());
    console::error(BaseException().what());
    return 1;
  }
  console::printFooter();
  return 0;
}

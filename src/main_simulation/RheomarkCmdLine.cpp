#include "main_simulation/RheomarkCmdLine.h"

#include "common/console.h"
#include "common/version.h"
#include "op/core/op_seq.h"

using TCLAP::ValueArg;

RheomarkCmdLine::RheomarkCmdLine(const std::string& message)
    : TCLAP::CmdLine(message, ' ', common::VERSION, true) {
  printHeader();
  fileArg = std::make_unique<ValueArg<std::string>>("f", "file", "the configuration file", true, "",
                                                    "string");
  logArg = std::make_unique<ValueArg<int>>("l", "log", "level of debug messages", false, 0, "int");
  nthreadsArg =
      std::make_unique<ValueArg<int>>("n", "nthreads", "number of threads", false, 1, "int");
  archiveArg = std::make_unique<ValueArg<std::string>>("a", "archive", "restore the archive", false,
                                                       "", "string");
  add(fileArg.get());
  add(logArg.get());
  add(nthreadsArg.get());
  add(archiveArg.get());
}

RheomarkCmdLine::~RheomarkCmdLine() {
  fileArg.reset();
  logArg.reset();
  nthreadsArg.reset();
  archiveArg.reset();
  printFooter();
}

void RheomarkCmdLine::printHeader() {
  common::console::printHeader(op_build());
}

void RheomarkCmdLine::printFooter() {
  common::console::printFooter();
}

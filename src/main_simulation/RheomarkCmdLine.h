// The command line that all executables of the framework share, with the banner and the footer.
#pragma once

#include <tclap/CmdLine.h>

#include <memory>
#include <string>

/// Construction prints the banner and declares --file, --log, --nthreads and --archive;
/// destruction prints the footer, so that it appears exactly when a run ends regularly.
class RheomarkCmdLine : public TCLAP::CmdLine {
 public:
  /// @param message what --help says about the executable
  explicit RheomarkCmdLine(const std::string& message);
  ~RheomarkCmdLine() override;
  RheomarkCmdLine(const RheomarkCmdLine&) = delete;
  RheomarkCmdLine& operator=(const RheomarkCmdLine&) = delete;
  RheomarkCmdLine(RheomarkCmdLine&&) = delete;
  RheomarkCmdLine& operator=(RheomarkCmdLine&&) = delete;

  std::string getJsonFile() const { return fileArg->getValue(); }
  int getLogLevel() const { return logArg->getValue(); }
  int getNthreads() const { return nthreadsArg->getValue(); }
  std::string getArchive() const { return archiveArg->getValue(); }

  static void printHeader();
  static void printFooter();

 private:
  std::unique_ptr<TCLAP::ValueArg<std::string>> fileArg;
  std::unique_ptr<TCLAP::ValueArg<int>> logArg;
  std::unique_ptr<TCLAP::ValueArg<int>> nthreadsArg;
  std::unique_ptr<TCLAP::ValueArg<std::string>> archiveArg;
};

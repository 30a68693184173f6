// The executable `simulation`.
#pragma once

#include <memory>
#include <string>

#include "main_simulation/RheomarkMain.h"

class RheomarkSimulation : public RheomarkMain {
 public:
  explicit RheomarkSimulation(const char* name);

  /// Adds --runfile, --progress, --debug and --output.
  void addArguments() override;
  bool checkForValidation() override { return true; }
  /// Restores the archived setup document if --archive is given, else simulates.
  void executionContent() override;

 private:
  std::string fileToBeWritten() const;

  std::unique_ptr<TCLAP::ValueArg<std::string>> runArg;
  std::unique_ptr<TCLAP::SwitchArg> progressArg;
  std::unique_ptr<TCLAP::SwitchArg> debugArg;
  std::unique_ptr<TCLAP::ValueArg<std::string>> outputArg;
};

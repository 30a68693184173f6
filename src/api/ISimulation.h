// What the application shell may ask of the domain object.
#pragma once

#include <string>

namespace api {

class ISimulation {
 public:
  virtual ~ISimulation() = default;

  /// Writes the archived setup document of the run file to a text file.
  virtual void printHash(const std::string& file) = 0;
  virtual void setParallel(const int& threads) = 0;
  /// Loads mesh, data and parameters and prepares the results file.
  virtual void init(const int& logLevel, const bool& progress, const bool& debug,
                    const std::string& output) = 0;
  /// Marches the model from start to end.
  virtual void run() = 0;
  /// Derives the parameters that no run file holds.
  virtual void initializeSimulationParameters() = 0;
};

}  // namespace api

// What every component of a model can tell about itself.
#pragma once

#include <string>

namespace api {

class IBase {
 public:
  virtual ~IBase() = default;

  virtual std::string getName() const = 0;
  /// The characters of the name; valid as long as the component lives.
  virtual const char* getNameC() const = 0;
  /// Where the component stands in run and results files.
  virtual std::string getH5Path() const = 0;
  /// Values per set element; of a set: its number of elements.
  virtual int getSize() const = 0;
  /// True if the simulation creates the component, so that no run file holds it.
  virtual bool isSimulationOnly() const = 0;
  /// True if the component stands in the run file only for those who read the results.
  virtual bool isSetupOnly() const = 0;
  virtual std::string getDescription() const = 0;
  virtual void print() const = 0;
};

}  // namespace api

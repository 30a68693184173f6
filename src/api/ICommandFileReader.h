// Values of a JSON document, addressed by paths such as SIMULATION/TIME/end.
//
// A required getter that finds nothing says so on standard error and returns a sentinel; the
// caller decides whether the run can go on. An optional getter returns the given default.
// `found` tells whether the value exists.
#pragma once

#include <string>
#include <vector>

namespace api {

class ICommandFileReader {
 public:
  virtual ~ICommandFileReader() = default;

  virtual std::string getFileName() const = 0;
  /// The document as compact text.
  virtual std::string getHash() const = 0;
  /// True if there is at least one path and all of them exist.
  virtual bool checkPaths(const std::vector<std::string>& paths) const = 0;
  /// A label for messages, as "array[2]/element".
  virtual std::string createPathWithinArray(const std::string& array, const int& index,
                                            const std::string& element) const = 0;
  /// The keys of an object, sorted.
  virtual std::vector<std::string> getGroups(const std::string& path) const = 0;

  virtual bool getBool(const std::string& path, bool& found) const = 0;
  virtual bool getOptionalBool(const std::string& path, const bool& value) const = 0;
  virtual int getInt(const std::string& path, bool& found) const = 0;
  virtual int getOptionalInt(const std::string& path, const int& value) const = 0;
  virtual std::vector<int> getIntList(const std::string& path, bool& found) const = 0;
  virtual std::vector<int> getOptionalIntList(const std::string& path,
                                              const std::vector<int>& value) const = 0;
  virtual double getDouble(const std::string& path, bool& found) const = 0;
  virtual double getOptionalDouble(const std::string& path, const double& value) const = 0;
  virtual std::vector<double> getDoubleList(const std::string& path, bool& found) const = 0;
  virtual std::vector<double> getOptionalDoubleList(const std::string& path,
                                                    const std::vector<double>& value) const = 0;
  virtual std::string getString(const std::string& path, bool& found) const = 0;
  virtual std::string getOptionalString(const std::string& path,
                                        const std::string& value) const = 0;
  virtual std::vector<std::string> getStringList(const std::string& path, bool& found) const = 0;
  virtual std::vector<std::string> getOptionalStringList(
      const std::string& path, const std::vector<std::string>& value) const = 0;
  virtual int getArrayLength(const std::string& path, bool& found) const = 0;
  virtual int getOptionalArrayLength(const std::string& path) const = 0;

  virtual int getIntFromArray(const std::string& array, const int& index,
                              const std::string& element, bool& found) const = 0;
  virtual int getOptionalIntFromArray(const std::string& array, const int& index,
                                      const std::string& element, const int& value) const = 0;
  virtual double getDoubleFromArray(const std::string& array, const int& index,
                                    const std::string& element, bool& found) const = 0;
  virtual double getOptionalDoubleFromArray(const std::string& array, const int& index,
                                            const std::string& element,
                                            const double& value) const = 0;
  virtual std::string getStringFromArray(const std::string& array, const int& index,
                                         const std::string& element, bool& found) const = 0;
  virtual std::string getOptionalStringFromArray(const std::string& array, const int& index,
                                                 const std::string& element,
                                                 const std::string& value) const = 0;
  virtual std::vector<double> getValueListFromArray(const std::string& array, const int& index,
                                                    const std::string& element,
                                                    bool& found) const = 0;
  virtual std::vector<double> getOptionalValueListFromArray(
      const std::string& array, const int& index, const std::string& element,
      const std::vector<double>& value) const = 0;
};

}  // namespace api

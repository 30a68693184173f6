// Reads settings from a JSON document, a command file or an archived setup document.
//
//   const dataio::JSONReader command("dam.json");
//   bool found = false;
//   const double end = command.getDouble("SIMULATION/TIME/end", found);
//
// The document has been validated before, or was valid once; a getter therefore reports what is
// missing and leaves it to the caller to stop. A value that is null, an empty object or an empty
// array counts as missing. One of another JSON type yields the same result as a missing one, but
// leaves `found` true and prints nothing.
//
//   type     required getter    optional getter
//   Bool     false              default
//   Int      -2147483648        default           conversions: JSONValue.h
//   Double   NaN                default
//   String   empty              default
//   lists    empty              default
//   length   0                  0
//
// What the JSON library throws travels: nlohmann::json::type_error for a path that runs through a
// value without members and for a list with an element of another type.
#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "api/ICommandFileReader.h"

namespace dataio {

class JSONReader : public api::ICommandFileReader {
 public:
  static constexpr const char* delimiter = "/";

  /// @param input a JSON document, or else the name of a file that holds one
  /// @throws BaseException if neither can be parsed; a file with bad JSON reports as not found.
  explicit JSONReader(const std::string& input);

  /// Empty if the document came as text.
  std::string getFileName() const override { return filename; }
  std::string getHash() const override;
  bool checkPaths(const std::vector<std::string>& paths) const override;
  std::string createPathWithinArray(const std::string& array, const int& index,
                                    const std::string& element) const override;
  std::vector<std::string> getGroups(const std::string& path) const override;

  bool getBool(const std::string& path, bool& found) const override;
  bool getOptionalBool(const std::string& path, const bool& value) const override;
  int getInt(const std::string& path, bool& found) const override;
  int getOptionalInt(const std::string& path, const int& value) const override;
  std::vector<int> getIntList(const std::string& path, bool& found) const override;
  std::vector<int> getOptionalIntList(const std::string& path,
                                      const std::vector<int>& value) const override;
  double getDouble(const std::string& path, bool& found) const override;
  double getOptionalDouble(const std::string& path, const double& value) const override;
  std::vector<double> getDoubleList(const std::string& path, bool& found) const override;
  std::vector<double> getOptionalDoubleList(const std::string& path,
                                            const std::vector<double>& value) const override;
  std::string getString(const std::string& path, bool& found) const override;
  std::string getOptionalString(const std::string& path, const std::string& value) const override;
  std::vector<std::string> getStringList(const std::string& path, bool& found) const override;
  std::vector<std::string> getOptionalStringList(
      const std::string& path, const std::vector<std::string>& value) const override;
  int getArrayLength(const std::string& path, bool& found) const override;
  int getOptionalArrayLength(const std::string& path) const override;

  int getIntFromArray(const std::string& array, const int& index, const std::string& element,
                      bool& found) const override;
  int getOptionalIntFromArray(const std::string& array, const int& index,
                              const std::string& element, const int& value) const override;
  double getDoubleFromArray(const std::string& array, const int& index, const std::string& element,
                            bool& found) const override;
  double getOptionalDoubleFromArray(const std::string& array, const int& index,
                                    const std::string& element, const double& value) const override;
  std::string getStringFromArray(const std::string& array, const int& index,
                                 const std::string& element, bool& found) const override;
  std::string getOptionalStringFromArray(const std::string& array, const int& index,
                                         const std::string& element,
                                         const std::string& value) const override;
  std::vector<double> getValueListFromArray(const std::string& array, const int& index,
                                            const std::string& element, bool& found) const override;
  std::vector<double> getOptionalValueListFromArray(
      const std::string& array, const int& index, const std::string& element,
      const std::vector<double>& value) const override;

  /// The elements of a path.
  std::vector<std::string> splitPath(const std::string& path) const;

  /// The value at `path`; the whole document for an empty path.
  nlohmann::json getValue(const std::string& path, bool& found) const;
  /// Reports a missing value on standard error.
  nlohmann::json getRequiredValue(const std::string& path, bool& found) const;
  nlohmann::json getOptionalValue(const std::string& path, bool& found) const;

  /// Member `element` of the object at `index` of the array at path `array`.
  /// @throws nlohmann::json::exception if `index` is not in the array.
  nlohmann::json getValueFromArray(const std::string& array, const int& index,
                                   const std::string& element, bool& found) const;
  /// Reports a missing value on standard error.
  nlohmann::json getRequiredValueFromArray(const std::string& array, const int& index,
                                           const std::string& element, bool& found) const;
  nlohmann::json getOptionalValueFromArray(const std::string& array, const int& index,
                                           const std::string& element, bool& found) const;

  /// The value at `path` as it stands, be it empty; null if there is none.
  nlohmann::json getRootOfPath(const std::string& path) const;

 private:
  template <class T>
  T getRequired(const std::string& path, bool& found, const T& missing) const;
  template <class T>
  T getOptional(const std::string& path, const T& value) const;
  template <class T>
  T getRequiredFromArray(const std::string& array, int index, const std::string& element,
                         bool& found, const T& missing) const;
  template <class T>
  T getOptionalFromArray(const std::string& array, int index, const std::string& element,
                         const T& value) const;

  std::string filename;
  nlohmann::json json;
};

}  // namespace dataio

// How the names of run files and results files follow from each other:
// run.h5 <-> run_results.h5.
#pragma once

#include <string>

namespace dataio {

class H5FileNameDefinitions {
 public:
  static constexpr const char* H5EXTENSION = ".h5";
  static constexpr const char* RESULTSID = "_results";

  /// The results file of a run file. The name is cut at its first ".h5".
  /// @throws BaseException if there is no ".h5" in `name`.
  static std::string getResultFileName(const std::string& name);

  /// The run file of a results file. The name is cut at its first "_results".
  /// @throws BaseException if there is no ".h5" or no "_results" in `name`.
  static std::string getRunFromResult(const std::string& name);
};

}  // namespace dataio

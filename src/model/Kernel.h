// A loop of the numerics over one set. In the run file the dataset kernelPath lists the kernels of
// the schedule, and kernelTimingPath holds their timing values, kernelTimingLength for each.
#pragma once

#include <string>
#include <vector>

#include "model/BaseSet.h"

namespace model {

class Kernel final : public BaseSet<KernelID> {
 public:
  static constexpr const char* kernelPath = "kernels/ID";
  static constexpr const char* kernelTimingPath = "kernels/execution";
  static constexpr int kernelTimingLength = 3;

  Kernel(const KernelID& newId, const std::string& newName, const std::string& newDescription,
         api::ISet* newSet);

  void setOptionalData(const std::vector<DataID>& ids) override;
  std::vector<DataID> getOptionalData() const override;
  void print() const override;

 private:
  std::vector<DataID> optionalData;
};

}  // namespace model

// A piece of physics that a user selects; it stands for a group of kernels.
#pragma once

#include <string>

#include "model/Base.h"

namespace model {

class Aggregate final : public Base<AggregateID> {
 public:
  Aggregate(const AggregateID& newId, const std::string& newName,
            const std::string& newDescription);

  void print() const override;
};

}  // namespace model

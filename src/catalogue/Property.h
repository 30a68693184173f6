// What each table of components tells about one component: its name, its shape and its type.
#pragma once

#include <cstdint>
#include <string>

/// Type of the values of a component. Aggregates hold no values and have none.
enum class DataType : std::int32_t { None = 0, Int = 1, Double = 2, String = 4 };

namespace model {

struct Property {
  std::string name;   ///< also the last element of the component's path in run and results files
  std::int32_t size;  ///< values per element of the component's set
  DataType type;
};

}  // namespace model

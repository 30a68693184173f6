// The boundaries of the flow and of the bed load under the names that a study gives them: which
// code each becomes in the run file, which values and series it takes, and what is made of them in
// every step. The two tables and those in docs/setup.md say the same.
//
// Every boundary has a record of 7 values. Its inputs are written into this record, once or by the
// lookup of a series in every step; its modifications then make of them what the flux needs, such
// as a velocity of a discharge. Amounts of bed load are volumes of grains without pores; those that
// a study gives are kept from the calibration factor of the bed load, shares of the capacity are
// not.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "catalogue/Codes.h"

namespace setup {

/// Where a boundary may be.
enum class Place {
  Edge,    ///< on a string along the boundary of the mesh
  Inside,  ///< on a string through the mesh, between cells on both sides
  Link     ///< on two strings along the boundary: water leaves at one and comes in at the other
};

/// What a series is looked up by.
enum class Lookup {
  Time,           ///< [s]
  Depth,          ///< mean depth at the string [m]
  Level,          ///< mean water surface at the string [m]
  Discharge,      ///< discharge through the string [m3/s]
  ReceivingLevel  ///< mean water surface at the second string of a link [m]
};

/// The form in which a study gives an input.
enum class Takes {
  Value,     ///< a number
  Flag,      ///< true or false, which become 1 and 0
  Nothing,   ///< not from the study: always the fallback
  Series,    ///< a series, under the name of the input with _file behind it
  SeriesToo  ///< a number or a series
};

enum class Bound { Any, NotNegative, Positive };

/// What the values of an input are multiplied by on their way into the record.
enum class Scale {
  One,
  MinusOne,     ///< for what leaves where the flux counts what comes in
  Uncalibrated  ///< 1 over the calibration factor of the bed load, which the flux applies
};

struct Input {
  std::string key;
  int position;  ///< in the record
  Takes takes;
  Bound bound;
  std::optional<double> fallback;  ///< the value if the study gives none; none: it must
  Scale scale = Scale::One;
};

/// What a modification does, with positions in the record.
struct Modification {
  model::EdgeModificationCode type;
  int target;                  ///< that is written
  std::array<int, 5> sources;  ///< that are read; as many as the type needs
};

using BoundaryCode = std::variant<model::HydBoundaryCode, model::MorBoundaryCode>;

struct BoundaryType {
  std::string name;
  Place place;
  BoundaryCode code;
  std::optional<BoundaryCode> receivingCode;  ///< at the second string of a link
  bool isInflow;                              ///< whether water comes in at the (first) string
  bool needsFriction;
  std::vector<Lookup>
      lookups;  ///< by which a series may be looked up, the first if nothing is said
  std::vector<Input> inputs;
  std::vector<Modification> modifications;  ///< in the order in which they apply
};

/// Those of the flow, and those of the bed load, in the order of their codes.
const std::vector<BoundaryType>& boundaryTypes();
const std::vector<BoundaryType>& bedBoundaryTypes();

/// The type of a name in one of the tables.
/// @throws std::out_of_range for an unknown name
const BoundaryType& typeNamed(const std::string& name, const std::vector<BoundaryType>& types);

/// The name under which a study asks for a lookup.
std::string nameOf(Lookup lookup);

/// What stands for a lookup in the run file.
model::InterpolationKey keyOf(Lookup lookup);

/// The number of a code in the run file.
int numberOf(const BoundaryCode& code);

}  // namespace setup

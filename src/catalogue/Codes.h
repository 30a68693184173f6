// The numbers by which a run file chooses among boundaries, modifications, lookups, sinks, closures
// and formulas. They are part of the file format: what writes them and what computes with them know
// them by these names. A file may hold other numbers; what happens then is said with each list.
#pragma once

// clang-format off
namespace model {

/// Boundaries of the flow, the first component of `HydBType`. Any other number is a wall.
/// Links join two strings: water leaves at the one and comes in at the other.
enum class HydBoundaryCode : int {
  InflowNormalDepth       = 100,  ///< discharge at normal depth, or at the depth of the cell
  InflowFroude            = 102,  ///< discharge at a Froude number, or at the depth of the cell
  OutflowNormalDepth      = 104,  ///< over a bed that goes on with a slope
  OutflowWeir             = 106,  ///< velocity over a weir
  OutflowRatingCurve      = 108,  ///< velocity that follows from a level, or is switched by it
  OutflowDischarge        = 110,  ///< velocity of a given discharge, with its momentum
  OutflowFree             = 112,  ///< as the cell is
  WaterLevel              = 114,  ///< water surface outside, which may let water in
  InnerTransfer           = 216,  ///< from cell to cell at a velocity: weir, rating curve, pump
  InnerGate               = 218,  ///< open or shut
  InnerWall               = 220,  ///< always shut
  LinkWeirInflow          = 322,
  LinkWeirOutflow         = 323,
  LinkRatingCurveInflow   = 324,
  LinkRatingCurveOutflow  = 325,
  LinkDischargeInflow     = 326,
  LinkDischargeOutflow    = 327,
  LinkSwitchInflow        = 328,
  LinkSwitchOutflow       = 329,
  LinkLevelInflow         = 330,
  LinkLevelOutflow        = 331,
};

/// Boundaries of the bed load, the first component of `MorBType`. Nothing passes at any other
/// number. Amounts are spread over the width, or weighted by the depth or the conveyance.
enum class MorBoundaryCode : int {
  LowestBed            = 400,  ///< the bed is raised to an elevation
  HighestBed           = 402,  ///< the bed is lowered to an elevation
  Inflow               = 404,
  InflowByDepth        = 406,
  InflowByConveyance   = 408,
  Capacity             = 410,  ///< a share of what the flow can carry, in or out
  CapacityByDepth      = 412,
  CapacityByConveyance = 414,
};

/// What is made of the values of a boundary in every step, the first component of `ModfInfo` on
/// `EdModDat`. Any other number leaves them as they are.
enum class EdgeModificationCode : int {
  OverLength                 = 1,   ///< value over the length of the string
  OverSecondLength           = 2,   ///< value over the length of the second string
  WeirVelocity               = 3,   ///< of a crest and two coefficients
  OverWettedArea             = 4,   ///< value over the wetted area
  OpenFromTime               = 5,   ///< 1 after a time, -1 before
  Switch                     = 8,   ///< one of two values over the wetted area, by level and delay
  WettedAreaOverSecondLength = 9,   ///< mean depth for the second string
  BedloadOverLength          = 10,  ///< sediment over the length of the string
  BedloadOverWettedArea      = 11,
  BedloadOverConveyance      = 12,
  CapacityOverLength         = 13,  ///< transport capacity at the string over its length
  CapacityOverWettedArea     = 14,
  CapacityOverConveyance     = 15,
  DischargeOverSecondLength  = 16,  ///< discharge through the string over that of the second one
};

/// What is made of the rate of a source in every step, the first component of `ModfInfo` on
/// `ClModDat`. Any other number leaves it as it is.
enum class CellModificationCode : int {
  OverRegionArea     = 6,  ///< an amount over the area of its region
  MillimetresPerHour = 7,  ///< to metres per second
};

/// What a series is looked up by, the first component of `KeyPostn`. Cells know the time only; any
/// other number looks up 0.
enum class InterpolationKey : int {
  Time       = 0,  ///< [s]
  Depth      = 1,  ///< mean depth at the string [m]
  WaterLevel = 2,  ///< mean water surface at the string [m]
  Discharge  = 3,  ///< through the string [m3/s]
};

/// What a negative source takes from its cell, `SinkType`: its amount in any case, no more than
/// there is, or all there is. There is no source at any other number.
enum class SinkCode : int {
  DischargeExact     = 10,  ///< water of a discharge
  DischargeAvailable = 11,
  DischargeInfinity  = 12,
  RainExact          = 20,  ///< water of a rate per area
  RainAvailable      = 21,
  RainInfinity       = 22,
  SedimentExact      = 30,  ///< the bed above the fixed bed
  SedimentAvailable  = 31,
  SedimentInfinity   = 32,
};

/// Roughness closures, `FrictionType`. There is no Chezy value at any other number.
enum class FrictionCode : int {
  Manning              = 1,  ///< n [s/m^(1/3)]
  Strickler            = 2,  ///< k [m^(1/3)/s]
  SandRoughness        = 3,  ///< equivalent sand roughness [m], logarithmic law
  SandRoughnessShallow = 4,  ///< the same, with a range for flow that is shallow against it
};

/// Forms of bed load formulas, `BeadloadType`. Any other number is the form of Meyer-Peter and
/// Mueller.
enum class BedloadCode : int {
  MeyerPeterMueller = 1,  ///< power of the stress above a threshold
  Grass             = 3,  ///< power of the velocity above a threshold
  PowerLaw          = 4,  ///< closed power of discharge and depth
};

/// Approaches to the slope of the bed in its critical stress, `IncipientMotType`. Any other number
/// is that of van Rijn.
enum class SlopeCorrectionCode : int {
  VanRijn = 1,  ///< van Rijn (1989)
  Chen    = 2,  ///< Chen et al. (2010)
};

}  // namespace model
// clang-format on

#include "catalogue/Sets.h"

namespace model {

using enum SetID;

// clang-format off
const std::map<SetID, Property> SetProps = {
  {NodesAll, {"NodesAll", 1, DataType::Int}},
  {CellsAll, {"CellsAll", 1, DataType::Int}},
  {CellsFix, {"CellsFix", 1, DataType::Int}},
  {ClHydSrc, {"ClHydSrc", 1, DataType::Int}},
  {EdgesAll, {"EdgesAll", 1, DataType::Int}},
  {EdgHydWL, {"EdgHydWL", 1, DataType::Int}},
  {EdgMorWL, {"EdgMorWL", 1, DataType::Int}},
  {EdgesSWE, {"EdgesSWE", 1, DataType::Int}},
  {EdgesEXN, {"EdgesEXN", 1, DataType::Int}},
  {EdgHydBC, {"EdgHydBC", 1, DataType::Int}},
  {EdgMorBC, {"EdgMorBC", 1, DataType::Int}},
  {NodeStrg, {"NodeStrg", 1, DataType::Int}},
  {MatIDRgn, {"MatIDRgn", 1, DataType::Int}},
  {EdgeData, {"EdgeData", 1, DataType::Int}},
  {CellData, {"CellData", 1, DataType::Int}},
  {InSeries, {"InSeries", 1, DataType::Int}},
  {EdInterp, {"EdInterp", 1, DataType::Int}},
  {ClInterp, {"ClInterp", 1, DataType::Int}},
  {EdModDat, {"EdModDat", 1, DataType::Int}},
  {ClModDat, {"ClModDat", 1, DataType::Int}},
  {ClMorSrc, {"ClMorSrc", 1, DataType::Int}},
};

const std::map<SetID, std::string> SetDescription = {
  {NodesAll, "Set of all the domain nodes, i.e. of the mesh vertices."},
  {CellsAll, "Set of all the computational cells of the domain."},
  {CellsFix, "Set of all computational cells with fixed bed elevation defined (subset of CELLSALL)."},
  {ClHydSrc, "Set of cells that are affected by hydraulic source terms (subset of CELLSALL)."},
  {EdgesAll, "Set of all the edges of the domain."},
  {EdgHydWL, "Set of hydraulic boundary edges of type WALL (subset of EDGESALL)."},
  {EdgMorWL, "Set of morphology boundary edges of type WALL (subset of EDGESALL)."},
  {EdgesSWE, "Set of hydraulic internal edges where the Riemann Solver is applied (subset of EDGESALL)."},
  {EdgesEXN, "Set of morphology internal edges where the Riemann Solver for Exner-equation is applied (subset of EDGESALL)."},
  {EdgHydBC, "Set of hydraulic boundary edges (subset of EDGESALL)."},
  {EdgMorBC, "Set of morphology boundary edges (subset of EDGESALL)."},
  {NodeStrg, "Set of nodeStrings where boundary conditions (or special output) are defined."},
  {MatIDRgn, "Set of regions, composed by a collection of computational cells (indicated by MATids)."},
  {EdgeData, "Set of the data containing information and parameters of the edge based boundary conditions."},
  {CellData, "Set of the data containing information and parameters of the cell based sources."},
  {InSeries, "Set of the time or value series provided by the user as separate text files."},
  {EdInterp, "Set of the interpolations required to calculate the interpolated values for the different BCs."},
  {ClInterp, "Set of the interpolations required to calculate the interpolated values for the different SRCs."},
  {EdModDat, "Set of edge based data modifications that are evaluated before the boundary data can be used as such."},
  {ClModDat, "Set of cell based data modifications that are evaluated before the source data can be used as such."},
  {ClMorSrc, "Set of cells that are affected by morphological source terms (subset of CELLSALL)."},
};
// clang-format on

}  // namespace model

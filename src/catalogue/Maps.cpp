#include "catalogue/Maps.h"

#include "catalogue/Limits.h"

namespace model {

using enum MapID;

// clang-format off
const std::map<MapID, Property> MapProps = {
  {CellsAll_EdgesAll, {"EdgesAll", 3,            DataType::Int}},
  {CellsAll_NbrCells, {"NbrCells", 3,            DataType::Int}},
  {CellsFix_CellsAll, {"CellsAll", 1,            DataType::Int}},
  {CellsFix_EdgesAll, {"EdgesAll", 3,            DataType::Int}},
  {ClHydSrc_CellsAll, {"CellsAll", 1,            DataType::Int}},
  {ClHydSrc_ClRegion, {"ClRegion", 1,            DataType::Int}},
  {ClHydSrc_CellData, {"CellData", 1,            DataType::Int}},
  {EdgesAll_CellsAll, {"CellsAll", 2,            DataType::Int}},
  {EdgHydWL_EdgesAll, {"EdgesAll", 1,            DataType::Int}},
  {EdgHydWL_CellsAll, {"CellsAll", 1,            DataType::Int}},
  {EdgMorWL_EdgesAll, {"EdgesAll", 1,            DataType::Int}},
  {EdgesSWE_EdgesAll, {"EdgesAll", 1,            DataType::Int}},
  {EdgesSWE_CellsAll, {"CellsAll", 2,            DataType::Int}},
  {EdgHydBC_EdgesAll, {"EdgesAll", 1,            DataType::Int}},
  {EdgHydBC_CellsAll, {"CellsAll", 2,            DataType::Int}},
  {EdgHydBC_EdgeData, {"EdgeData", 1,            DataType::Int}},
  {EdgMorBC_EdgesAll, {"EdgesAll", 1,            DataType::Int}},
  {EdgMorBC_CellsAll, {"CellsAll", 2,            DataType::Int}},
  {EdgMorBC_EdgeData, {"EdgeData", 1,            DataType::Int}},
  {EdgesEXN_EdgesAll, {"EdgesAll", 1,            DataType::Int}},
  {EdgesEXN_CellsAll, {"CellsAll", 2,            DataType::Int}},
  {NodeStrg_EdgesAll, {"EdgesAll", STRING_EDGES, DataType::Int}},
  {NodeStrg_CellsAll, {"CellsAll", STRING_EDGES, DataType::Int}},
  {EdInterp_InSeries, {"InSeries", 1,            DataType::Int}},
  {EdInterp_NodeStrg, {"NodeStrg", 1,            DataType::Int}},
  {EdInterp_EdgeData, {"EdgeData", 1,            DataType::Int}},
  {ClInterp_InSeries, {"InSeries", 1,            DataType::Int}},
  {ClInterp_CellData, {"CellData", 1,            DataType::Int}},
  {EdModDat_NodeStrg, {"NodeStrg", 2,            DataType::Int}},
  {EdModDat_EdgeData, {"EdgeData", 1,            DataType::Int}},
  {ClModDat_MatIDRgn, {"MatIDRgn", 1,            DataType::Int}},
  {ClModDat_CellData, {"CellData", 1,            DataType::Int}},
  {ClMorSrc_CellsAll, {"CellsAll", 1,            DataType::Int}},
  {ClMorSrc_ClRegion, {"ClRegion", 1,            DataType::Int}},
  {ClMorSrc_CellsFix, {"CellsFix", 1,            DataType::Int}},
  {ClMorSrc_CellData, {"CellData", 1,            DataType::Int}},
};

const std::map<MapID, std::string> MapDescription = {
  {CellsAll_EdgesAll, "Map from cells (ALL) to composing edges (1 -> 3)."},
  {CellsAll_NbrCells, "Map from cells (ALL) to neighbour cells (1 -> 3)."},
  {CellsFix_CellsAll, "Map from cells fixed bed to cells (ALL) (1 -> 1)."},
  {CellsFix_EdgesAll, "Map from cells fixed bed to composing edges (1 -> 3)."},
  {ClHydSrc_CellsAll, "Map from hydraulic source cells to the entire cells set (ALL) (1 -> 1)."},
  {ClHydSrc_ClRegion, "Map from hydraulic source cells to the according cell region (1 -> 1)."},
  {ClHydSrc_CellData, "Map from hydraulic source cells to input source data (1 -> 1)."},
  {EdgesAll_CellsAll, "Map from edges (ALL) to left/right cell (1 -> 2)."},
  {EdgHydWL_EdgesAll, "Map from hydraulic WALL edges to the entire edge set (ALL) (1 -> 1)."},
  {EdgHydWL_CellsAll, "Map from hydraulic WALL edges to left/right cell (1 -> 2)."},
  {EdgMorWL_EdgesAll, "Map from morphology WALL edges to the entire edge set (ALL) (1 -> 1)."},
  {EdgesSWE_EdgesAll, "Map from internal (SWE) edges  to the entire edge set (ALL) (1 -> 1)."},
  {EdgesSWE_CellsAll, "Map from internal (SWE) edges  to left/right cell (1 -> 2)."},
  {EdgHydBC_EdgesAll, "Map from edges (standard hydraulic boundary) to the entire edge set (ALL) (1 -> 1)."},
  {EdgHydBC_CellsAll, "Map from edges (standard hydraulic boundary) to left/right cell (1 -> 2)."},
  {EdgHydBC_EdgeData, "Map from edges (standard hydraulic boundary) to input boundary data (1 -> 1)."},
  {EdgMorBC_EdgesAll, "Map from edges (standard morphology boundary) to the entire edge set (ALL) (1 -> 1)."},
  {EdgMorBC_CellsAll, "Map from edges (standard morphology boundary) to left/right cell (1 -> 2)."},
  {EdgMorBC_EdgeData, "Map from edges (standard morphology boundary) to input boundary data (1 -> 1)."},
  {EdgesEXN_EdgesAll, "Map from internal (EXNer) edges  to the entire edge set (ALL) (1 -> 1)."},
  {EdgesEXN_CellsAll, "Map from internal (EXNer) edges  to left/right cell (1 -> 2)."},
  {NodeStrg_EdgesAll, "Map from each NodeString to its forming edges (ALL) (1 -> NodeString maximum size)."},
  {NodeStrg_CellsAll, "Map from each NodeString to its attached upstream cells (ALL) (1 -> NodeString maximum size)."},
  {EdInterp_InSeries, "Map from edge interpolation set to the Input Series set (1 -> 1)."},
  {EdInterp_NodeStrg, "Map from edge interpolation set to the NodeString set (1 -> 1)."},
  {EdInterp_EdgeData, "Map from edge interpolation set to the boundary data set (1 -> 1)."},
  {ClInterp_InSeries, "Map from cell interpolation set to the Input Series set (1 -> 1)."},
  {ClInterp_CellData, "Map from cell interpolation set to the source data set (1 -> 1)."},
  {EdModDat_NodeStrg, "Map from the set of edge based data modification routines to the according entry of nodestring set (1 -> 1)."},
  {EdModDat_EdgeData, "Map from the set of edge based data modification routines to the according entry of boundary data (1 -> 1)."},
  {ClModDat_MatIDRgn, "Map from the set of cell based data modification routines to the according entry of matid region set (1 -> 1)."},
  {ClModDat_CellData, "Map from the set of cell based data modification routines to the according entry of source data (1 -> 1)."},
  {ClMorSrc_CellsAll, "Map from morphological source cells to the entire cells set (ALL) (1 -> 1)."},
  {ClMorSrc_ClRegion, "Map from morphological source cells to the according cell region (1 -> 1)."},
  {ClMorSrc_CellsFix, "Map from morphological source cells to fixed bed cells (1 -> 1)."},
  {ClMorSrc_CellData, "Map from morphological source cells to input source data (1 -> 1)."},
};
// clang-format on

}  // namespace model

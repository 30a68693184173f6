// The content of each set, one function a file.
#pragma once

#include "setup/runfile/contents.h"

namespace setup {

SetContent nodesAll();  ///< the nodes of the mesh
SetContent cellsAll();  ///< the cells of the mesh
SetContent edgesAll();  ///< the edges of the mesh
SetContent edgHydWL();  ///< the edges that are walls for the flow
SetContent edgMorWL();  ///< the edges that are walls for the bed load
SetContent edgesSWE();  ///< the edges that the flow passes
SetContent edgesEXN();  ///< the edges that the bed load passes
SetContent edgHydBC();  ///< the edges with a boundary of the flow
SetContent edgMorBC();  ///< the edges with a boundary of the bed load
SetContent nodeStrg();  ///< the nodestrings of the study
SetContent matIDRgn();  ///< the regions of the study
SetContent cellsFix();  ///< the cells with a fixed bed, or with a source of sediment
SetContent clHydSrc();  ///< the cells with a source of water
SetContent clMorSrc();  ///< the cells with a source of sediment
SetContent edgeData();  ///< the records of the boundaries
SetContent cellData();  ///< the records of the sources
SetContent inSeries();  ///< the series of boundaries and sources
SetContent edInterp();  ///< the lookups of series for boundaries
SetContent clInterp();  ///< the lookups of series for sources
SetContent edModDat();  ///< what the records of the boundaries go through in every step
SetContent clModDat();  ///< what the records of the sources go through in every step

}  // namespace setup

#include "setup/domain/Domain.h"

#include "setup/mesh/Reader2dm.h"
#include "setup/mesh/made_meshes.h"

namespace setup {

namespace {

/// Every mesh format has its line here.
struct MeshMaker {
  Mesh operator()(const MeshFile& source) const { return readMesh2dm(source.file); }
  Mesh operator()(const RectangleMesh& source) const { return makeMesh(source); }
  Mesh operator()(const ChannelMesh& source) const { return makeMesh(source); }
};

void numberCells(Domain& domain) {
  const Neighbours asGiven = neighboursOf(findTopology(domain.mesh));
  orderCells(domain.mesh, cuthillMcKee(asGiven));
  domain.topology = findTopology(domain.mesh);
  domain.bandwidthAsGiven = bandwidth(asGiven);
  domain.bandwidthAsNumbered = bandwidth(neighboursOf(domain.topology));
}

void prepareBed(const Study& study, Domain& domain) {
  domain.grainSizes = cellGrainSizes(study, domain.mesh, domain.geometry);
  domain.criticalValues.assign(domain.mesh.cells.size(), study.morphology->bedload.critical);
  domain.fixedCells =
      fixCells(study, domain.mesh, domain.geometry, domain.bed, domain.sources.bed.cells);
  requireBottom(study, domain.sources, domain.fixedCells);
}

}  // namespace

Domain buildDomain(const Study& study) {
  Domain domain;
  domain.mesh = std::visit(MeshMaker{}, study.mesh);
  domain.tidying = tidyMesh(domain.mesh);
  numberCells(domain);
  domain.geometry = measure(domain.mesh, domain.topology);
  domain.bed = cellBeds(study, domain.mesh, domain.geometry);
  domain.flow = initialFlow(study, domain.mesh, domain.geometry, domain.bed);
  domain.friction = cellFriction(study, domain.mesh, domain.geometry);
  domain.strings = findStrings(study, domain.mesh, domain.topology, domain.geometry);
  domain.boundaries =
      layBoundaries(study, domain.mesh, domain.topology, domain.strings, domain.series);
  domain.sources = laySources(study, domain.mesh, domain.geometry, domain.series);
  if (study.morphology) prepareBed(study, domain);
  return domain;
}

}  // namespace setup

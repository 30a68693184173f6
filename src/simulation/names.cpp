#include "simulation/names.h"

#include "catalogue/Data.h"
#include "catalogue/Maps.h"
#include "catalogue/Relations.h"
#include "catalogue/Sets.h"

namespace simulation {

std::string pathOf(model::DataID id) {
  return model::SetProps.at(model::Data2Set.at(id)).name + "/" + model::DataProps.at(id).name;
}

std::string pathOf(model::MapID id) {
  return model::SetProps.at(model::Map2Sets.at(id).first).name + "/" + model::MapProps.at(id).name;
}

}  // namespace simulation

#include "simulation/names.h"

#include "model/catalogue/Data.h"
#include "model/catalogue/Maps.h"
#include "model/catalogue/Relations.h"
#include "model/catalogue/Sets.h"

namespace simulation {

std::string pathOf(model::DataID id) {
  return model::SetProps.at(model::Data2Set.at(id)).name + "/" + model::DataProps.at(id).name;
}

std::string pathOf(model::MapID id) {
  return model::SetProps.at(model::Map2Sets.at(id).first).name + "/" + model::MapProps.at(id).name;
}

}  // namespace simulation

#include <string>
#include <string_view>

#include "setup/study/document/geometry_schema.h"
#include "setup/study/document/hydraulics_schema.h"
#include "setup/study/document/morphology_schema.h"
#include "setup/study/document/study_document.h"

namespace setup {

namespace {

/// The keys of all groups that describe an area, in the place of AREA_MARK.
constexpr std::string_view AREA_MARK = "<region and box>";
constexpr std::string_view AREA_KEYS = R"json("region": {
  "description": "Where: the cells of this region.",
  "type": "string",
  "requiredIn": {
    "$array_ref": "/SETUP/DOMAIN/RHEOPLANE_2D/GEOMETRY/REGIONDEF",
    "itemProperty": "name"
  }
},
"box": {
  "description": "Where: the cells with their centroid in this box, [xmin, ymin, xmax, ymax] in m.",
  "type": "array",
  "items": {"type": "number"}
})json";

std::string withAreaKeys(std::string schema) {
  for (std::size_t at = 0; (at = schema.find(AREA_MARK, at)) != std::string::npos;) {
    schema.replace(at, AREA_MARK.size(), AREA_KEYS);
  }
  return schema;
}

}  // namespace

const std::string& studySchema() {
  static const std::string schema = withAreaKeys(std::string(R"json({
  "description": "A study: what a run file is made from. Units are metres and seconds.",
  "type": "object",
  "required": ["SETUP"],
  "properties": {
    "SETUP": {
      "description": "Everything that setup reads.",
      "type": "object",
      "required": ["DOMAIN"],
      "properties": {
        "DOMAIN": {
          "description": "The domain and its name.",
          "type": "object",
          "required": ["RHEOPLANE_2D"],
          "optional": ["name", "crs"],
          "properties": {
            "name": {
              "description": "A name for the report.",
              "type": "string"
            },
            "crs": {
              "description": "The coordinate reference system of the mesh as a code of the EPSG register, such as EPSG:2056. It goes along with the results; nothing is projected.",
              "type": "string"
            },
            "RHEOPLANE_2D": {
              "description": "The two-dimensional domain.",
              "type": "object",
              "required": ["GEOMETRY", "HYDRAULICS"],
              "optional": ["MORPHOLOGY"],
              "properties": {
                "GEOMETRY": )json") + GEOMETRY_SCHEMA +
                                                 R"json(,
                "HYDRAULICS": )json" + HYDRAULICS_SCHEMA +
                                                 R"json(,
                "MORPHOLOGY": )json" + MORPHOLOGY_SCHEMA +
                                                 R"json(
              }
            }
          }
        }
      }
    }
  }
})json");
  return schema;
}

}  // namespace setup

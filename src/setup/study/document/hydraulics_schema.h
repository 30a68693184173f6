// The part of the schema of a study document for the flow.
#pragma once

namespace setup {

inline constexpr const char* HYDRAULICS_SCHEMA = R"json({
  "description": "The flow: its parameters, its initial state, what acts on it and what is recorded.",
  "type": "object",
  "optional": ["PARAMETER", "INITIAL", "FRICTION", "BOUNDARY", "SOURCE", "FLOOD"],
  "properties": {
    "PARAMETER": {
      "description": "Parameters of the flow.",
      "type": "object",
      "optional": ["cfl", "maximum_time_step", "minimum_water_depth", "gravity", "safe_mode"],
      "properties": {
        "cfl": {
          "description": "CFL number. 0.5 is on the safe side for triangles of any shape.",
          "type": "number",
          "minimum": 0,
          "exclusiveMinimum": true,
          "maximum": 1,
          "default": 0.5
        },
        "maximum_time_step": {
          "description": "Bound of the time step before it is multiplied by cfl in s.",
          "type": "number",
          "minimum": 0,
          "exclusiveMinimum": true,
          "default": 100
        },
        "minimum_water_depth": {
          "description": "Cells with this depth or less count as dry, in m.",
          "type": "number",
          "minimum": 0,
          "exclusiveMinimum": true,
          "default": 0.001
        },
        "gravity": {
          "description": "Acceleration of gravity in m/s2.",
          "type": "number",
          "minimum": 0,
          "exclusiveMinimum": true,
          "default": 9.81
        },
        "safe_mode": {
          "description": "Whether a negative depth may end the run, true or false. By default true."
        }
      }
    },
    "INITIAL": {
      "description": "The water at the start. Without this group everything is dry.",
      "type": "object",
      "optional": ["water_level", "water_depth", "velocity", "ZONES"],
      "properties": {
        "water_level": {
          "description": "Elevation of the water surface in m, or dry.",
          "default": "dry"
        },
        "water_depth": {
          "description": "Depth over the bed in m, instead of water_level.",
          "type": "number",
          "minimum": 0
        },
        "velocity": {
          "description": "Velocity of the water, [x, y] in m/s. By default [0, 0].",
          "type": "array",
          "items": {"type": "number"}
        },
        "ZONES": {
          "description": "Other values in parts of the domain. Where zones overlap, the later one counts.",
          "type": "array",
          "items": {
            "description": "A zone of the water.",
            "type": "object",
            "oneOf": [{"required": ["water_level"]}, {"required": ["water_depth"]}],
            "optional": ["region", "box", "velocity"],
            "properties": {
              <region and box>,
              "water_level": {
                "description": "Elevation of the water surface in m, or dry."
              },
              "water_depth": {
                "description": "Depth over the bed in m, instead of water_level.",
                "type": "number",
                "minimum": 0
              },
              "velocity": {
                "description": "Velocity of the water, [x, y] in m/s. By default [0, 0].",
                "type": "array",
                "items": {"type": "number"}
              }
            }
          }
        }
      }
    },
    "FRICTION": {
      "description": "The friction at the bed. Without this group there is none.",
      "type": "object",
      "required": ["type", "value"],
      "optional": ["ZONES"],
      "properties": {
        "type": {
          "description": "The roughness closure.",
          "type": "string",
          "enum": ["manning", "strickler", "sand_roughness", "sand_roughness_shallow"]
        },
        "value": {
          "description": "The roughness where no zone says otherwise: n in s/m^(1/3), k in m^(1/3)/s, or a sand roughness in m.",
          "type": "number",
          "minimum": 0,
          "exclusiveMinimum": true
        },
        "ZONES": {
          "description": "Other values in parts of the domain. Where zones overlap, the later one counts.",
          "type": "array",
          "items": {
            "description": "A zone of the roughness.",
            "type": "object",
            "required": ["value"],
            "optional": ["region", "box"],
            "properties": {
              <region and box>,
              "value": {
                "description": "The roughness in the zone, in the unit of the closure.",
                "type": "number",
                "minimum": 0,
                "exclusiveMinimum": true
              }
            }
          }
        }
      }
    },
    "BOUNDARY": {
      "description": "Boundaries at strings. Edges on the boundary of the mesh without one are walls.",
      "type": "array",
      "items": {
        "description": "A boundary. Which of the keys it takes and needs is a matter of its type.",
        "type": "object",
        "required": ["string", "type"],
        "optional": [
          "to", "over", "discharge", "discharge_file", "slope", "froude", "level", "level_file", "inflow", "crest",
          "coefficient", "rise", "discharge_below", "discharge_above", "opening_below", "opening_above",
          "upper_level", "lower_level", "delay", "opens_at", "opening_file"
        ],
        "properties": {
          "string": {
            "description": "The string where it is.",
            "type": "string",
            "requiredIn": {
              "$array_ref": "/SETUP/DOMAIN/RHEOPLANE_2D/GEOMETRY/STRINGDEF",
              "itemProperty": "name"
            }
          },
          "type": {
            "description": "What happens there.",
            "type": "string",
            "enum": [
              "inflow", "inflow_froude", "normal_depth", "weir", "rating_curve", "switched_outflow", "outflow",
              "free_outflow", "level", "inner_weir", "inner_rating_curve", "inner_discharge", "gate_by_time",
              "gate_by_series", "gate_by_level", "inner_wall", "linked_weir", "linked_rating_curve",
              "linked_discharge", "linked_switch", "linked_level"
            ]
          },
          "to": {
            "description": "The string where the water of a link comes in.",
            "type": "string",
            "requiredIn": {
              "$array_ref": "/SETUP/DOMAIN/RHEOPLANE_2D/GEOMETRY/STRINGDEF",
              "itemProperty": "name"
            }
          },
          "over": {
            "description": "What a series is looked up by: time in s, or depth in m, level in m or discharge in m3/s at the string, or the level at the string to in m.",
            "type": "string",
            "enum": ["time", "depth", "level", "discharge", "receiving_level"]
          },
          "discharge": {
            "description": "Discharge of the whole string in m3/s.",
            "type": "number",
            "minimum": 0
          },
          "discharge_file": {
            "description": "A series of discharges or a rating curve, instead of discharge.",
            "type": "string"
          },
          "slope": {
            "description": "Energy slope of the normal depth in m per m.",
            "type": "number",
            "minimum": 0,
            "exclusiveMinimum": true
          },
          "froude": {
            "description": "Froude number of the inflow.",
            "type": "number",
            "minimum": 0,
            "default": 1
          },
          "level": {
            "description": "Water surface outside in m.",
            "type": "number"
          },
          "level_file": {
            "description": "A series of levels, instead of level.",
            "type": "string"
          },
          "inflow": {
            "description": "Whether a level may let water in, true or false. By default true."
          },
          "crest": {
            "description": "Crest elevation of a weir in m.",
            "type": "number"
          },
          "coefficient": {
            "description": "The part of the weir's coefficient that is there without a head.",
            "type": "number",
            "minimum": 0,
            "default": 0.611
          },
          "rise": {
            "description": "Growth of the weir's coefficient with the head over the height of the crest.",
            "type": "number",
            "minimum": 0,
            "default": 0.08
          },
          "discharge_below": {
            "description": "Discharge of a switch until the level has reached upper_level in m3/s.",
            "type": "number",
            "minimum": 0,
            "default": 0
          },
          "discharge_above": {
            "description": "Discharge of a switch from then on in m3/s.",
            "type": "number",
            "minimum": 0
          },
          "opening_below": {
            "description": "Opening of a gate until the level has reached upper_level; it is open above 0.",
            "type": "number",
            "default": -1
          },
          "opening_above": {
            "description": "Opening of a gate from then on.",
            "type": "number",
            "default": 1
          },
          "upper_level": {
            "description": "Level at the string at which a switch changes in m.",
            "type": "number"
          },
          "lower_level": {
            "description": "Level at or below which it changes back in m, below upper_level. By default it never does.",
            "type": "number"
          },
          "delay": {
            "description": "Time from reaching upper_level to the change in s.",
            "type": "number",
            "minimum": 0,
            "default": 0
          },
          "opens_at": {
            "description": "Time from which a gate is open in s.",
            "type": "number"
          },
          "opening_file": {
            "description": "A series over time, above 0 where the gate is open.",
            "type": "string"
          }
        }
      }
    },
    "SOURCE": {
      "description": "Sources of water, each in a region.",
      "type": "array",
      "items": {
        "description": "A source. Its type tells which of the rates it takes.",
        "type": "object",
        "required": ["region", "type"],
        "oneOf": [
          {"required": ["intensity"]},
          {"required": ["intensity_file"]},
          {"required": ["discharge"]},
          {"required": ["discharge_file"]}
        ],
        "optional": ["sink"],
        "properties": {
          "region": {
            "description": "The region where it is; a region has one source.",
            "type": "string",
            "requiredIn": {
              "$array_ref": "/SETUP/DOMAIN/RHEOPLANE_2D/GEOMETRY/REGIONDEF",
              "itemProperty": "name"
            }
          },
          "type": {
            "description": "rain: water on each square metre; discharge: an amount that is spread over the region.",
            "type": "string",
            "enum": ["discharge", "rain"]
          },
          "intensity": {
            "description": "Rain in mm/h; below 0: losses.",
            "type": "number"
          },
          "intensity_file": {
            "description": "A series of rain over time, instead of intensity.",
            "type": "string"
          },
          "discharge": {
            "description": "Discharge of the whole region in m3/s; below 0: taken away.",
            "type": "number"
          },
          "discharge_file": {
            "description": "A series of discharges over time, instead of discharge.",
            "type": "string"
          },
          "sink": {
            "description": "What a rate below 0 takes: its amount in any case, no more than there is, or all water of its cells.",
            "type": "string",
            "enum": ["exact", "available", "infinity"],
            "default": "available"
          }
        }
      }
    },
    "FLOOD": {
      "description": "Records arrival time, largest depth, velocity and specific discharge.",
      "type": "object",
      "required": ["track"],
      "properties": {
        "track": {
          "description": "The cells that are tracked.",
          "type": "string",
          "enum": ["all"]
        }
      }
    }
  }
})json";

}  // namespace setup

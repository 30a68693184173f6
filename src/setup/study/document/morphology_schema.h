// The part of the schema of a study document for the moving bed.
#pragma once

namespace setup {

inline constexpr const char* MORPHOLOGY_SCHEMA = R"json({
  "description": "The bed that moves: what it is made of, its bed load and what acts on it. Without this group it stays.",
  "type": "object",
  "required": ["BEDMATERIAL", "BEDLOAD"],
  "optional": ["PARAMETER", "INCIPIENT_MOTION", "SOURCE"],
  "properties": {
    "PARAMETER": {
      "description": "Parameters of the moving bed.",
      "type": "object",
      "optional": ["start"],
      "properties": {
        "start": {
          "description": "Time from which the bed moves in s.",
          "type": "number",
          "default": 0
        }
      }
    },
    "BEDMATERIAL": {
      "description": "What the bed is made of.",
      "type": "object",
      "optional": ["porosity", "density", "water_density", "grain_size", "ZONES", "FIXED_BED"],
      "properties": {
        "porosity": {
          "description": "Share of the pores in the volume of the bed.",
          "type": "number",
          "minimum": 0,
          "maximum": 1,
          "exclusiveMaximum": true,
          "default": 0.4
        },
        "density": {
          "description": "Density of the grains in kg/m3.",
          "type": "number",
          "minimum": 0,
          "exclusiveMinimum": true,
          "default": 2650
        },
        "water_density": {
          "description": "Density of the water in kg/m3.",
          "type": "number",
          "minimum": 0,
          "exclusiveMinimum": true,
          "default": 1000
        },
        "grain_size": {
          "description": "Median grain size in m where no zone says otherwise.",
          "type": "number",
          "minimum": 0,
          "exclusiveMinimum": true
        },
        "ZONES": {
          "description": "Other grain sizes in parts of the domain. Where zones overlap, the later one counts.",
          "type": "array",
          "items": {
            "description": "A zone of the bed material.",
            "type": "object",
            "required": ["grain_size"],
            "optional": ["region", "box"],
            "properties": {
              <region and box>,
              "grain_size": {
                "description": "Median grain size in the zone in m.",
                "type": "number",
                "minimum": 0,
                "exclusiveMinimum": true
              }
            }
          }
        },
        "FIXED_BED": {
          "description": "Where the bed cannot be eroded below an elevation: rock, paving, concrete.",
          "type": "object",
          "required": ["ZONES"],
          "optional": ["accuracy", "maximum_passes"],
          "properties": {
            "accuracy": {
              "description": "By how much the bed may fall below the fixed bed in a step in m.",
              "type": "number",
              "minimum": 0,
              "exclusiveMinimum": true,
              "default": 1e-6
            },
            "maximum_passes": {
              "description": "How often the bed load is corrected in a step at most.",
              "type": "integer",
              "minimum": 1,
              "maximum": 1000000,
              "default": 100
            },
            "ZONES": {
              "description": "Where. Where zones overlap, the later one counts.",
              "type": "array",
              "items": {
                "description": "A zone of the fixed bed.",
                "type": "object",
                "oneOf": [{"required": ["elevation"]}, {"required": ["below_bed"]}],
                "optional": ["region", "box"],
                "properties": {
                  <region and box>,
                  "elevation": {
                    "description": "Elevation of the fixed bed in m.",
                    "type": "number"
                  },
                  "below_bed": {
                    "description": "How far the fixed bed lies below the bed at the start in m, instead of elevation.",
                    "type": "number",
                    "minimum": 0
                  }
                }
              }
            }
          }
        }
      }
    },
    "BEDLOAD": {
      "description": "How much sediment the flow moves along the bed, and where to.",
      "type": "object",
      "required": ["FORMULA"],
      "optional": ["DIRECTION", "BOUNDARY"],
      "properties": {
        "FORMULA": {
          "description": "The formula. Its type tells which of the other keys it takes.",
          "type": "object",
          "required": ["type"],
          "optional": ["coefficient", "exponent", "critical_shields", "critical_velocity", "chezy", "factor"],
          "properties": {
            "type": {
              "description": "The formula, by its authors or its form.",
              "type": "string",
              "enum": [
                "meyer_peter_mueller_1948", "fernandez_luque_van_beek_1976", "hunziker_1995", "wong_parker_2006",
                "wong_parker_2006_power_1_6", "mpm", "grass_1981", "engelund_hansen_1967", "power_law"
              ]
            },
            "coefficient": {
              "description": "The coefficient A of the formula.",
              "type": "number",
              "minimum": 0,
              "exclusiveMinimum": true
            },
            "exponent": {
              "description": "The exponent B of the formula.",
              "type": "number",
              "minimum": 0,
              "exclusiveMinimum": true
            },
            "critical_shields": {
              "description": "Shields parameter below which nothing moves.",
              "type": "number",
              "minimum": 0
            },
            "critical_velocity": {
              "description": "Velocity below which nothing moves in m/s.",
              "type": "number",
              "minimum": 0
            },
            "chezy": {
              "description": "Chezy value over the square root of the gravity, for all cells.",
              "type": "number",
              "minimum": 0,
              "exclusiveMinimum": true
            },
            "factor": {
              "description": "Factor on the bed load of the formula, to calibrate it.",
              "type": "number",
              "minimum": 0,
              "exclusiveMinimum": true,
              "default": 1
            }
          }
        },
        "DIRECTION": {
          "description": "What turns the bed load away from the flow.",
          "type": "object",
          "optional": ["IKEDA", "CURVATURE"],
          "properties": {
            "IKEDA": {
              "description": "The slope of the bed across the flow.",
              "type": "object",
              "required": ["factor"],
              "properties": {
                "factor": {
                  "description": "Factor f of tan = f / sqrt(Shields parameter) times the slope.",
                  "type": "number",
                  "minimum": 0
                }
              }
            },
            "CURVATURE": {
              "description": "The bend of the flow.",
              "type": "object",
              "required": ["factor"],
              "properties": {
                "factor": {
                  "description": "Factor f of tan = f times depth times the curvature of the solver.",
                  "type": "number",
                  "minimum": 0
                }
              }
            }
          }
        },
        "BOUNDARY": {
          "description": "Boundaries of the bed load, each at a string along the boundary of the mesh.",
          "type": "array",
          "items": {
            "description": "A boundary of the bed load. Its type tells which of the other keys it takes.",
            "type": "object",
            "required": ["string", "type"],
            "optional": ["over", "elevation", "elevation_file", "discharge", "discharge_file", "share", "share_file"],
            "properties": {
              "string": {
                "description": "Where it is; a string has one boundary of the bed load.",
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
                  "lowest_bed", "highest_bed", "inflow", "inflow_by_depth", "inflow_by_conveyance", "capacity_inflow",
                  "capacity_outflow", "outflow", "capacity_inflow_by_depth", "capacity_outflow_by_depth",
                  "outflow_by_depth", "capacity_inflow_by_conveyance", "capacity_outflow_by_conveyance",
                  "outflow_by_conveyance"
                ]
              },
              "over": {
                "description": "What a series is looked up by: time in s, or at the string discharge of water in m3/s, depth in m or level in m.",
                "type": "string",
                "enum": ["time", "discharge", "depth", "level"]
              },
              "elevation": {
                "description": "Elevation at which the bed is held in m.",
                "type": "number"
              },
              "elevation_file": {
                "description": "A series of elevations, instead of elevation.",
                "type": "string"
              },
              "discharge": {
                "description": "Sediment through the whole string in m3/s of grains.",
                "type": "number",
                "minimum": 0
              },
              "discharge_file": {
                "description": "A series of sediment or its rating curve, instead of discharge.",
                "type": "string"
              },
              "share": {
                "description": "Share of what the flow at the string can carry.",
                "type": "number",
                "minimum": 0,
                "default": 1
              },
              "share_file": {
                "description": "A series of shares, instead of share.",
                "type": "string"
              }
            }
          }
        }
      }
    },
    "INCIPIENT_MOTION": {
      "description": "How the slope of the bed changes the critical value of the formula. Without this group it does not.",
      "type": "object",
      "required": ["type", "angle_of_repose"],
      "properties": {
        "type": {
          "description": "The approach, by its authors.",
          "type": "string",
          "enum": ["van_rijn_1989", "chen_2010"]
        },
        "angle_of_repose": {
          "description": "Angle of repose of the bed material in degrees.",
          "type": "number",
          "minimum": 0,
          "exclusiveMinimum": true,
          "maximum": 90,
          "exclusiveMaximum": true
        }
      }
    },
    "SOURCE": {
      "description": "Sources of sediment, each in a region: what is dumped or dredged.",
      "type": "array",
      "items": {
        "description": "A source. Its type tells which of the rates it takes.",
        "type": "object",
        "required": ["region", "type"],
        "oneOf": [
          {"required": ["rate"]},
          {"required": ["rate_file"]},
          {"required": ["discharge"]},
          {"required": ["discharge_file"]}
        ],
        "optional": ["sink"],
        "properties": {
          "region": {
            "description": "The region where it is; a region has one source of sediment.",
            "type": "string",
            "requiredIn": {
              "$array_ref": "/SETUP/DOMAIN/RHEOPLANE_2D/GEOMETRY/REGIONDEF",
              "itemProperty": "name"
            }
          },
          "type": {
            "description": "rise: the bed rises everywhere; discharge: an amount that is spread over the region.",
            "type": "string",
            "enum": ["discharge", "rise"]
          },
          "rate": {
            "description": "Rise of the bed in mm/h; below 0: it is lowered.",
            "type": "number"
          },
          "rate_file": {
            "description": "A series of rises over time, instead of rate.",
            "type": "string"
          },
          "discharge": {
            "description": "Bed, with its pores, for the whole region in m3/s; below 0: taken away.",
            "type": "number"
          },
          "discharge_file": {
            "description": "A series of such amounts over time, instead of discharge.",
            "type": "string"
          },
          "sink": {
            "description": "What a rate below 0 takes: its amount in any case, no more than there is above the fixed bed, or all of it.",
            "type": "string",
            "enum": ["exact", "available", "infinity"],
            "default": "available"
          }
        }
      }
    }
  }
})json";

}  // namespace setup

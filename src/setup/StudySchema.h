// The schema of a study document: what a user may write there.
#pragma once

namespace setup {

inline constexpr const char* STUDY_SCHEMA = R"json({
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
          "optional": ["name"],
          "properties": {
            "name": {
              "description": "A name for the report.",
              "type": "string"
            },
            "RHEOPLANE_2D": {
              "description": "The two-dimensional domain.",
              "type": "object",
              "required": ["GEOMETRY", "HYDRAULICS"],
              "properties": {
                "GEOMETRY": {
                  "description": "The mesh, which is read or made, and the bed.",
                  "type": "object",
                  "oneOf": [
                    {"required": ["MESH"]},
                    {"required": ["RECTANGLE"]},
                    {"required": ["CHANNEL"]}
                  ],
                  "optional": ["REGIONDEF", "BED"],
                  "properties": {
                    "MESH": {
                      "description": "A mesh from a file.",
                      "type": "object",
                      "required": ["file"],
                      "properties": {
                        "file": {
                          "description": "A mesh in the 2dm format. A relative name starts from the folder of the study.",
                          "type": "string"
                        }
                      }
                    },
                    "RECTANGLE": {
                      "description": "A rectangle along the axes with a plane bed.",
                      "type": "object",
                      "required": ["length", "width", "cells"],
                      "optional": ["origin", "elevation", "slope", "pattern"],
                      "properties": {
                        "origin": {
                          "description": "Lower left corner, [x, y] in m. By default [0, 0].",
                          "type": "array",
                          "items": {"type": "number"}
                        },
                        "length": {
                          "description": "Extent along x in m.",
                          "type": "number",
                          "minimum": 0,
                          "exclusiveMinimum": true
                        },
                        "width": {
                          "description": "Extent along y in m.",
                          "type": "number",
                          "minimum": 0,
                          "exclusiveMinimum": true
                        },
                        "cells": {
                          "description": "Number of rectangles along x and along y, [n, m], each of which is cut into triangles.",
                          "type": "array",
                          "items": {"type": "integer", "minimum": 1, "maximum": 25000000}
                        },
                        "elevation": {
                          "description": "Bed elevation at the side x = origin in m.",
                          "type": "number",
                          "default": 0
                        },
                        "slope": {
                          "description": "Fall of the bed in m per m along x.",
                          "type": "number",
                          "default": 0
                        },
                        "pattern": {
                          "description": "How the rectangles are cut: by the same diagonal everywhere, by a diagonal that changes from one rectangle to the next, or by both diagonals.",
                          "type": "string",
                          "enum": ["diagonal", "alternating", "crossed"],
                          "default": "alternating"
                        }
                      }
                    },
                    "CHANNEL": {
                      "description": "A straight channel along x with banks on both sides.",
                      "type": "object",
                      "required": ["length", "bed_width", "cells"],
                      "optional": ["origin", "side_slope", "bank_height", "elevation", "slope", "pattern"],
                      "properties": {
                        "origin": {
                          "description": "Upstream end of the centre line, [x, y] in m. By default [0, 0].",
                          "type": "array",
                          "items": {"type": "number"}
                        },
                        "length": {
                          "description": "Length in m.",
                          "type": "number",
                          "minimum": 0,
                          "exclusiveMinimum": true
                        },
                        "bed_width": {
                          "description": "Width of the bed between the banks in m.",
                          "type": "number",
                          "minimum": 0,
                          "exclusiveMinimum": true
                        },
                        "side_slope": {
                          "description": "Metres across per metre of height of the banks; 0: no banks.",
                          "type": "number",
                          "minimum": 0,
                          "default": 0
                        },
                        "bank_height": {
                          "description": "Height of the banks over the bed in m; given together with side_slope.",
                          "type": "number",
                          "minimum": 0,
                          "default": 0
                        },
                        "cells": {
                          "description": "Number of rectangles along the channel, across the bed and across each bank, [n, m, k].",
                          "type": "array",
                          "items": {"type": "integer", "minimum": 1, "maximum": 25000000}
                        },
                        "elevation": {
                          "description": "Bed elevation at the upstream end in m.",
                          "type": "number",
                          "default": 0
                        },
                        "slope": {
                          "description": "Fall of the bed in m per m along x.",
                          "type": "number",
                          "default": 0
                        },
                        "pattern": {
                          "description": "How the rectangles are cut, as for RECTANGLE.",
                          "type": "string",
                          "enum": ["diagonal", "alternating", "crossed"],
                          "default": "alternating"
                        }
                      }
                    },
                    "REGIONDEF": {
                      "description": "Names for the materials of the mesh.",
                      "type": "array",
                      "items": {
                        "description": "A region: the cells of one material.",
                        "type": "object",
                        "required": ["index", "name"],
                        "properties": {
                          "index": {
                            "description": "The material.",
                            "type": "integer",
                            "minimum": -2147483648,
                            "maximum": 2147483647
                          },
                          "name": {
                            "description": "The name by which zones refer to the cells of this material.",
                            "type": "string"
                          }
                        }
                      }
                    },
                    "BED": {
                      "description": "Changes of the bed, which apply one after the other.",
                      "type": "array",
                      "items": {
                        "description": "A zone of the bed: set to a plane or lifted.",
                        "type": "object",
                        "oneOf": [{"required": ["elevation"]}, {"required": ["raise"]}],
                        "optional": ["region", "box", "gradient", "at"],
                        "properties": {
                          "region": {
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
                          },
                          "elevation": {
                            "description": "The bed elevation in the zone in m.",
                            "type": "number"
                          },
                          "gradient": {
                            "description": "Rise of the bed in m per m along x and y, [x, y]; given together with at.",
                            "type": "array",
                            "items": {"type": "number"}
                          },
                          "at": {
                            "description": "The place where the bed has the elevation, [x, y] in m.",
                            "type": "array",
                            "items": {"type": "number"}
                          },
                          "raise": {
                            "description": "Lifts the bed, instead of elevation, in m.",
                            "type": "number"
                          }
                        }
                      }
                    }
                  }
                },
                "HYDRAULICS": {
                  "description": "The flow: its parameters, its initial state and what is recorded.",
                  "type": "object",
                  "optional": ["PARAMETER", "INITIAL", "FLOOD"],
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
                              "region": {
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
                              },
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
                }
              }
            }
          }
        }
      }
    }
  }
})json";

}  // namespace setup

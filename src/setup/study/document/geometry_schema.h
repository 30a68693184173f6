// The part of the schema of a study document for the mesh, its regions and strings, and the bed.
#pragma once

namespace setup {

inline constexpr const char* GEOMETRY_SCHEMA = R"json({
  "description": "The mesh, which is read or made, its strings and the bed.",
  "type": "object",
  "oneOf": [
    {"required": ["MESH"]},
    {"required": ["RECTANGLE"]},
    {"required": ["CHANNEL"]}
  ],
  "optional": ["REGIONDEF", "STRINGDEF", "BED"],
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
    "STRINGDEF": {
      "description": "Nodestrings: lines of edges of the mesh.",
      "type": "array",
      "items": {
        "description": "A string: a nodestring of the mesh, node ids or a straight line.",
        "type": "object",
        "required": ["name"],
        "optional": ["mesh_string", "nodes", "from", "to", "reverse"],
        "properties": {
          "name": {
            "description": "The name by which boundaries refer to the string.",
            "type": "string"
          },
          "mesh_string": {
            "description": "Name or number of a nodestring of the mesh file. By default the name of the string.",
            "type": "string"
          },
          "nodes": {
            "description": "Ids of the nodes in their order, instead of mesh_string.",
            "type": "array",
            "items": {"type": "integer", "minimum": -2147483648, "maximum": 2147483647}
          },
          "from": {
            "description": "Where a straight line begins, instead of mesh_string, [x, y] in m; given together with to.",
            "type": "array",
            "items": {"type": "number"}
          },
          "to": {
            "description": "Where the line ends, [x, y] in m.",
            "type": "array",
            "items": {"type": "number"}
          },
          "reverse": {
            "description": "Whether the direction is turned, true or false. By default false."
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
          <region and box>,
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
})json";

}  // namespace setup

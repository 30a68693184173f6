// The schema of the SIMULATION section of a command file: what a user may write there.
#pragma once

inline constexpr const char* SIMULATION_SCHEMA = R"json({
  "$schema": "file://RHEOMARK_MetaSchema.json",
  "type": "object",
  "required": ["SIMULATION"],
  "properties": {
    "SIMULATION": {
      "description": "Parameters required for the numerical simulation.",
      "type": "object",
      "required": ["TIME", "OUTPUT"],
      "optional": ["TIMESTEP"],
      "properties": {
        "TIME": {
          "description": "Time parameters of the numerical simulation.",
          "type": "object",
          "required": ["start", "end", "out"],
          "properties": {
            "start": {
              "description": "This parameter defines the time (in seconds) at which the simulation starts.",
              "type": "number",
              "default": 0.0,
              "minimum": 0.0
            },
            "end": {
              "description": "This parameter defines the total run time (in seconds) of the simulation. When the given time value is reached, the simulation stops.",
              "type": "number",
              "minimum": 0.0
            },
            "out": {
              "description": "This parameter defines the time step for which the output shall be written during the simulation (in seconds).",
              "type": "number",
              "minimum": 0.0
            }
          }
        },
        "TIMESTEP": {
          "type": "object",
          "required": ["init", "minimum"],
          "properties": {
            "init": {
              "description": "This parameter influences the time step of a simulation during no-flow conditions to avoid numerical instability (when the CFL criterion is not applicable, e.g. at a completely dry state). By default, it is set to 0.02 [s].",
              "type": "number",
              "default": 0.02,
              "minimum": 0.0,
              "exclusiveMinimum": true
            },
            "minimum": {
              "description": "This parameter gives a warning during the simulation, if the actual time step is lower than the minimum time step. It doesn't influence the time step. Use the CFL number if you want to in-/decrease the time step. By default, it is set to 0.0001 [s].",
              "type": "number",
              "default": 0.0001,
              "minimum": 0.0,
              "exclusiveMinimum": true
            }
          }
        },
        "OUTPUT": {
          "description": "Desired output of a numerical simulation",
          "type": "array",
          "items": {
            "type": "string",
            "enum": [
              "water_surface",
              "water_depth",
              "bottom_elevation",
              "friction_chezy",
              "delta_z",
              "flow_curvature",
              "flow_radius",
              "flow_velocity",
              "spec_discharge",
              "ns_hyd_discharge",
              "ns_mor_discharge"
            ]
          }
        }
      }
    }
  }
})json";

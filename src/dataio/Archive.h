// The configuration that each file of a run carries: the setup document under .config/model and,
// in a results file, the simulation document under .config/simulation. A model can be rebuilt from
// either file alone. The stored text, called a hash, is the whole document as compact JSON; no
// digest is computed.
//
//   dataio::Archive::addModel(writer, dataio::Archive::getModel(reader));
//   dataio::Archive::restore(reader, "setup.json");
#pragma once

#include <string>

#include "api/IH5Reader.h"
#include "api/IH5Writer.h"

namespace dataio {

/// An entry is a one-dimensional string dataset of length 1.
class Archive {
 public:
  static constexpr const char* ROOT = ".config";
  static constexpr const char* MODEL = "model";
  static constexpr const char* SIMULATION = "simulation";

  /// The text of the entry at `path`.
  /// @throws h5::Error if there is no entry, BaseException if the entry has no element.
  static std::string getHash(api::IH5Reader* const& reader, const std::string& path);
  static std::string getModel(api::IH5Reader* const& reader);
  static std::string getSimulation(api::IH5Reader* const& reader);

  /// Stores `hash` as the entry at `path`, in place of an earlier one.
  static void addHash(api::IH5Writer* const& writer, const std::string& path,
                      const std::string& hash);
  static void addModel(api::IH5Writer* const& writer, const std::string& hash);
  static void addSimulation(api::IH5Writer* const& writer, const std::string& hash);

  /// Writes the model entry to a text file, replacing its content; no newline is added.
  /// @return false if the file cannot be written; nothing is said about it
  static bool restore(api::IH5Reader* const& reader, const std::string& file);
};

}  // namespace dataio

// Compares HDF5 files dataset by dataset.
#pragma once

#include <string>
#include <vector>

namespace support {

/// What differs between two files, one line each; empty if they hold the same.
///
/// Compared are the paths of all datasets, their shapes, their values (numbers bit for bit, but NaN
/// equals NaN and zeros of either sign are equal) and the attribute "t".
std::vector<std::string> differences(const std::string& expectedFile,
                                     const std::string& actualFile);

/// All values of a numeric dataset, row after row; throws std::runtime_error if it cannot be read.
std::vector<double> readNumbers(const std::string& file, const std::string& path);

/// Paths of all datasets, sorted.
std::vector<std::string> datasetPaths(const std::string& file);

/// The attribute "t" of a dataset, NaN if it has none.
double readTime(const std::string& file, const std::string& path);

/// Overwrites one value of a dataset of doubles or ints, counted row after row.
void overwrite(const std::string& file, const std::string& path, std::size_t position,
               double value);

/// Removes a dataset or a group.
void removeLink(const std::string& file, const std::string& path);

}  // namespace support

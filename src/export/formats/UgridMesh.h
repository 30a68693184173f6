// The mesh in a NetCDF file by the UGRID conventions, and how variables refer to it.
//
//   exporter::UgridMesh mesh(results.mesh(), 2056);
//   mesh.define(file);
//   mesh.putOnFaces(file, variable);
//   file.endDefinitions();
//   mesh.write(file);
#pragma once

#include <string>
#include <vector>

#include "export/formats/NcFile.h"
#include "export/results/Mesh.h"

namespace exporter {

class UgridMesh {
 public:
  /// @param epsgCode of the coordinate reference system; 0: none is known
  UgridMesh(const Mesh& triangles, int epsgCode) : mesh(triangles), epsg(epsgCode) {}

  void define(NcFile& file);
  void write(NcFile& file) const;

  /// The dimension of the faces.
  int faces() const { return faceDimension; }
  /// Says that the values of a variable belong to the faces.
  void putOnFaces(NcFile& file, int variable) const;

 private:
  void defineCrs(NcFile& file) const;
  void defineTopology(NcFile& file);
  int defineCoordinate(NcFile& file, const std::string& location, int dimension,
                       const std::string& axis) const;
  void writeFaces(NcFile& file) const;

  const Mesh& mesh;
  int epsg;
  int nodeDimension = 0;
  int faceDimension = 0;
  int faceNodes = 0;
  std::vector<int> nodeCoordinates;  ///< x, y, z
  std::vector<int> faceCoordinates;  ///< x, y
};

}  // namespace exporter

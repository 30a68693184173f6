// Describes results to a viewer of XDMF: one mesh, steps in time, at each step values on cells.
//
// The document holds no numbers: it points to datasets of HDF5 files, by a file name that a viewer
// takes relative to the document. Order: the mesh, then steps, values within a step, write last.
#pragma once

#include <string>
#include <vector>

namespace api {

class IXdmfWriter {
 public:
  virtual ~IXdmfWriter() = default;

  /// Ends the document and writes it. A file that cannot be written is passed over in silence.
  virtual void write(const std::string& file) = 0;
  /// @param topologyDataset int, (cells, 3): the nodes of each triangle
  /// @param geometryDataset double, (nodes, dimension): the coordinates of each node [m]
  /// @param dimension coordinates per node: 3
  virtual void addMesh(int numberOfCells, const std::string& topologyFile,
                       const std::string& topologyDataset, int numberOfNodes,
                       const std::string& geometryFile, const std::string& geometryDataset,
                       int dimension) = 0;
  /// @param t [s]
  /// @throws BaseException if there is no mesh.
  virtual void addTimeStep(double t) = 0;

  // Values stand on the cells: in datasets of doubles, (rows, columns), with a row for each cell.
  // All throw BaseException if there is no step.

  /// One column of a dataset.
  virtual void addScalar(const std::string& name, int rows, const std::string& file,
                         const std::string& dataset, int columns, int column) = 0;
  /// Two columns of a dataset, as the first components of a vector of three.
  /// @param selected the two columns
  virtual void addVector(const std::string& name, int rows, const std::string& file,
                         const std::string& dataset, int columns,
                         const std::vector<int>& selected) = 0;
  /// A formula that the viewer evaluates.
  /// @param function as "$0-$1"; $n is the column n of the lists
  /// @param sizes columns of each dataset; @param columns the one of them that is taken
  /// @throws BaseException also if the lists differ in length.
  virtual void addFunctionScalar(const std::string& name, int rows, const std::string& function,
                                 const std::vector<std::string>& files,
                                 const std::vector<std::string>& datasets,
                                 const std::vector<int>& sizes,
                                 const std::vector<int>& columns) = 0;
};

/// What a document for viewers can hold besides.
class IViewerXdmfWriter : public IXdmfWriter {
 public:
  /// Two formulas, as the first components of a vector of three; see addFunctionScalar.
  virtual void addFunctionVector(const std::string& name, int rows,
                                 const std::vector<std::string>& functions,
                                 const std::vector<std::string>& files,
                                 const std::vector<std::string>& datasets,
                                 const std::vector<int>& sizes,
                                 const std::vector<int>& columns) = 0;
  /// A whole dataset: of one column, or of the three components of a vector.
  virtual void addDataset(const std::string& name, int rows, const std::string& file,
                          const std::string& dataset, int columns) = 0;
  /// What is added up to endIncluded stands where only those readers find it that resolve
  /// inclusions: for values that others would misread.
  virtual void beginIncluded() = 0;
  virtual void endIncluded() = 0;
  /// A text about the whole document, to be added before the mesh.
  virtual void addInformation(const std::string& name, const std::string& value) = 0;
};

}  // namespace api

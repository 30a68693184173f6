// Describes a results file to viewers of XDMF. See api::IXdmfWriter for the order of the calls.
//
//   const std::unique_ptr<api::IXdmfWriter> xdmf(dataio::Factory::createXdmfWriter("run.xdmf"));
//   xdmf->addMesh(2, "r.h5", "CellsAll/Topology", 4, "r.h5", "NodesAll/Coordnts", 3);
//   xdmf->addTimeStep(0.0);
//   xdmf->addScalar("water_surface", 2, "r.h5", "/RESULTS/CellsAll/HydState/0000000", 3, 0);
//   xdmf->write("run.xdmf");
//
// A plain document holds what the format needs, one for viewers what they need besides, as has been
// checked with ParaView 5.11 and QGIS 3.22:
// - Numbers without NumberType and Precision are read as floats of 4 bytes.
// - The Dimensions of a function are those of its result: rows by 1, or by 3 for a vector.
// - ParaView's reader of XDMF 2 follows References and inclusions, those of XDMF 3 inclusions only,
//   QGIS neither: each step names its mesh in both ways.
// - The readers of XDMF 3 show whole datasets only; QGIS shows columns, their differences and
//   vectors of two columns, refuses whole datasets, and refuses or misreads all other functions.
//   What it must not see is included.
#pragma once

#include <string>
#include <vector>

#include "api/IXdmfWriter.h"
#include "dataio/SimpleXdmf.h"

namespace dataio {

enum class XdmfForm { Plain, ForViewers };

class XdmfWriter final : public api::IViewerXdmfWriter {
 public:
  /// @param name of the document, for messages
  explicit XdmfWriter(const std::string& name, XdmfForm form = XdmfForm::Plain);

  void write(const std::string& file) override;
  void addMesh(int numberOfCells, const std::string& topologyFile,
               const std::string& topologyDataset, int numberOfNodes,
               const std::string& geometryFile, const std::string& geometryDataset,
               int dimension) override;
  void addTimeStep(double t) override;
  void addScalar(const std::string& name, int rows, const std::string& file,
                 const std::string& dataset, int columns, int column) override;
  void addVector(const std::string& name, int rows, const std::string& file,
                 const std::string& dataset, int columns,
                 const std::vector<int>& selected) override;
  void addFunctionScalar(const std::string& name, int rows, const std::string& function,
                         const std::vector<std::string>& filenames,
                         const std::vector<std::string>& datasets, const std::vector<int>& sizes,
                         const std::vector<int>& indices) override;
  void addFunctionVector(const std::string& name, int rows,
                         const std::vector<std::string>& functions,
                         const std::vector<std::string>& filenames,
                         const std::vector<std::string>& datasets, const std::vector<int>& sizes,
                         const std::vector<int>& indices) override;
  void addDataset(const std::string& name, int rows, const std::string& file,
                  const std::string& dataset, int columns) override;
  void beginIncluded() override;
  void endIncluded() override;
  void addInformation(const std::string& name, const std::string& value) override;

 private:
  /// @param size values per cell: 1, or 3 for a vector
  void beginAttribute(const std::string& name, int rows, const int& size, const bool& isFunction,
                      const std::string& function);
  void endAttribute(const bool& isFunction);
  void addFunction(const std::string& name, int rows, int size, const std::string& function,
                   const std::vector<std::string>& filenames,
                   const std::vector<std::string>& datasets, const std::vector<int>& sizes,
                   const std::vector<int>& indices);
  /// One column of a dataset of two dimensions.
  void dataItem(int rows, const std::string& file, const std::string& dataset, int columns,
                int column);
  void meshItem(int rows, int columns, const std::string& file, const std::string& dataset,
                const std::string& numberType, int bytes);
  void valueItem(int rows, int columns, const std::string& file, const std::string& dataset);
  void beginUniformItem(int rows, int columns);
  void referTo(const std::string& element, const std::string& type, const std::string& tag);
  /// Start, stride and count of a selection.
  /// @param columns dimensions of the dataset: 2, or 1 for one without columns
  static std::vector<int> xmlDataDescription(const unsigned& rows, const unsigned& columns,
                                             const unsigned& column);

  std::string filename;
  bool forViewers;
  SimpleXdmf xdmf;
  bool meshAdded = false;
  bool seriesOpen = false;
  bool timeOpen = false;
  bool written = false;
  int steps = 0;
  int inclusions = 0;  ///< of the step
};

}  // namespace dataio

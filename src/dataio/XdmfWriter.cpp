#include "dataio/XdmfWriter.h"

#include "common/check.h"

namespace dataio {

namespace {

constexpr int DOUBLE_BYTES = 8;
constexpr int INT_BYTES = 4;

std::string createPath(const std::string& file, const std::string& dataset) {
  return file + ":" + dataset;
}

std::string joined(const std::vector<int>& numbers) {
  std::string text;
  for (const int number : numbers) text += (text.empty() ? "" : " ") + std::to_string(number);
  return text;
}

}  // namespace

XdmfWriter::XdmfWriter(const std::string& name, XdmfForm form)
    : filename(name), forViewers(form == XdmfForm::ForViewers) {
  xdmf.setVersion("2.0");
  xdmf.beginElement("Domain");
}

void XdmfWriter::write(const std::string& file) {
  if (!written) {
    if (timeOpen) xdmf.endElement("Grid");
    if (seriesOpen) xdmf.endElement("Grid");
    xdmf.endElement("Domain");
    written = true;
  }
  xdmf.generate(file);
}

void XdmfWriter::beginUniformItem(int rows, int columns) {
  xdmf.beginElement("DataItem");
  xdmf.addType("Uniform");
  xdmf.setDimensions(rows, columns);
  xdmf.setFormat("HDF");
}

void XdmfWriter::meshItem(int rows, int columns, const std::string& file,
                          const std::string& dataset, const std::string& numberType, int bytes) {
  beginUniformItem(rows, columns);
  if (forViewers) {
    xdmf.setNumberType(numberType);
    xdmf.setPrecision(bytes);
  }
  xdmf.addItem(createPath(file, dataset));
  xdmf.endDataItem();
}

void XdmfWriter::valueItem(int rows, int columns, const std::string& file,
                           const std::string& dataset) {
  beginUniformItem(rows, columns);
  xdmf.setNumberType("Float");
  if (forViewers) xdmf.setPrecision(DOUBLE_BYTES);
  xdmf.addItem(createPath(file, dataset));
  xdmf.endDataItem();
}

void XdmfWriter::addMesh(int numberOfCells, const std::string& topologyFile,
                         const std::string& topologyDataset, int numberOfNodes,
                         const std::string& geometryFile, const std::string& geometryDataset,
                         int dimension) {
  xdmf.beginElement("UnstructuredTopology");
  xdmf.addType("Triangle");
  xdmf.setNumberOfElements(numberOfCells);
  meshItem(numberOfCells, 3, topologyFile, topologyDataset, "Int", INT_BYTES);
  xdmf.endElement("UnstructuredTopology");

  xdmf.beginElement("Geometry");
  xdmf.addType("XYZ");
  xdmf.setName("Coordinates");
  meshItem(numberOfNodes, dimension, geometryFile, geometryDataset, "Float", DOUBLE_BYTES);
  xdmf.endElement("Geometry");
  meshAdded = true;
}

void XdmfWriter::referTo(const std::string& element, const std::string& type,
                         const std::string& tag) {
  const std::string path = "/Xdmf/Domain/" + tag + "[1]";
  xdmf.beginElement(element);
  xdmf.addType(type);
  xdmf.setReference(path);
  xdmf.endElement(element);
  if (forViewers) xdmf.addInclude(path);
}

void XdmfWriter::addTimeStep(double t) {
  CHECK_THAT(this->meshAdded, "you must define a mesh before adding a time step!");
  CHECK_THAT(!this->written, "<" << filename << "> is written: no time step can be added!");
  if (!seriesOpen) {
    xdmf.beginElement("Grid");
    xdmf.addType("Collection");
    xdmf.setCollectionType("Temporal");
    seriesOpen = true;
  }
  if (timeOpen) xdmf.endElement("Grid");
  xdmf.beginElement("Grid");
  xdmf.addType("Uniform");
  xdmf.setName("Timestep");

  const std::string time = std::to_string(t);
  xdmf.beginElement("Time");
  xdmf.addType("Single");
  xdmf.setName("time = " + time);
  xdmf.setValue(time);
  xdmf.endElement("Time");

  referTo("UnstructuredTopology", "Triangle", "Topology");
  referTo("Geometry", "XY", "Geometry");
  timeOpen = true;
  ++steps;
  inclusions = 0;
}

void XdmfWriter::beginAttribute(const std::string& name, int rows, const int& size,
                                const bool& isFunction, const std::string& function) {
  CHECK_THAT(this->timeOpen, "you must add a time step before adding data!");
  CHECK_THAT(!this->written, "<" << filename << "> is written: no data can be added!");
  xdmf.beginElement("Attribute");
  xdmf.addType(size == 1 ? "Scalar" : "Vector");
  xdmf.setName(name);
  xdmf.setCenter("Cell");
  if (!isFunction) return;
  xdmf.beginElement("DataItem");
  xdmf.addType("Function");
  xdmf.setDimensions(rows, size);
  xdmf.setFunction(function);
}

void XdmfWriter::endAttribute(const bool& isFunction) {
  if (isFunction) xdmf.endDataItem();
  xdmf.endElement("Attribute");
}

std::vector<int> XdmfWriter::xmlDataDescription(const unsigned& rows, const unsigned& columns,
                                                const unsigned& column) {
  std::vector<int> description(columns - 1, 0);
  description.push_back(static_cast<int>(column));
  description.insert(description.end(), columns, 1);
  description.push_back(static_cast<int>(rows));
  description.insert(description.end(), columns - 1, 1);
  return description;
}

void XdmfWriter::dataItem(int rows, const std::string& file, const std::string& dataset,
                          int columns, int column) {
  constexpr unsigned DATASET_DIMENSIONS = 2;
  xdmf.beginElement("DataItem");
  xdmf.addType("HyperSlab");
  xdmf.setDimensions(rows, 1);
  xdmf.beginElement("DataItem");
  xdmf.setDimensions(3, 2);
  xdmf.setFormat("XML");
  xdmf.setNumberType("Int");
  xdmf.addItem(joined(xmlDataDescription(static_cast<unsigned>(rows), DATASET_DIMENSIONS,
                                         static_cast<unsigned>(column))));
  xdmf.endDataItem();
  valueItem(rows, columns, file, dataset);
  xdmf.endDataItem();
}

void XdmfWriter::addScalar(const std::string& name, int rows, const std::string& file,
                           const std::string& dataset, int columns, int column) {
  beginAttribute(name, rows, 1, false, "");
  dataItem(rows, file, dataset, columns, column);
  endAttribute(false);
}

void XdmfWriter::addVector(const std::string& name, int rows, const std::string& file,
                           const std::string& dataset, int columns,
                           const std::vector<int>& selected) {
  beginAttribute(name, rows, 3, true, "JOIN($0, $1, 0*$1)");
  dataItem(rows, file, dataset, columns, selected.at(0));
  dataItem(rows, file, dataset, columns, selected.at(1));
  endAttribute(true);
}

void XdmfWriter::addFunction(const std::string& name, int rows, int size,
                             const std::string& function, const std::vector<std::string>& filenames,
                             const std::vector<std::string>& datasets,
                             const std::vector<int>& sizes, const std::vector<int>& indices) {
  CHECK_THAT(filenames.size() == datasets.size(), "invalid dataset path descriptions provided");
  CHECK_THAT(datasets.size() == sizes.size(), "invalid dataset size descriptions provided");
  CHECK_THAT(datasets.size() == indices.size(), "invalid dataset column descriptions provided");
  beginAttribute(name, rows, size, true, function);
  for (std::size_t i = 0; i < datasets.size(); ++i) {
    dataItem(rows, filenames[i], datasets[i], sizes[i], indices[i]);
  }
  endAttribute(true);
}

void XdmfWriter::addFunctionScalar(const std::string& name, int rows, const std::string& function,
                                   const std::vector<std::string>& filenames,
                                   const std::vector<std::string>& datasets,
                                   const std::vector<int>& sizes, const std::vector<int>& indices) {
  addFunction(name, rows, 1, function, filenames, datasets, sizes, indices);
}

// Without the parentheses the reader of XDMF 2 loses track of the arguments.
void XdmfWriter::addFunctionVector(const std::string& name, int rows,
                                   const std::vector<std::string>& functions,
                                   const std::vector<std::string>& filenames,
                                   const std::vector<std::string>& datasets,
                                   const std::vector<int>& sizes, const std::vector<int>& indices) {
  CHECK_THAT(functions.size() == 2, "a vector needs two functions, not " << functions.size());
  addFunction(name, rows, 3, "JOIN((" + functions[0] + "), (" + functions[1] + "), (0*$1))",
              filenames, datasets, sizes, indices);
}

void XdmfWriter::addDataset(const std::string& name, int rows, const std::string& file,
                            const std::string& dataset, int columns) {
  beginAttribute(name, rows, columns, false, "");
  valueItem(rows, columns, file, dataset);
  endAttribute(false);
}

// Readers of XDMF 3 insist on a value.
void XdmfWriter::beginIncluded() {
  CHECK_THAT(this->timeOpen, "you must add a time step before adding data!");
  xdmf.beginElement("Information");
  xdmf.setName("included");
  xdmf.setValue(std::to_string(++inclusions));
}

void XdmfWriter::endIncluded() {
  xdmf.endElement("Information");
  xdmf.addInclude("/Xdmf/Domain/Grid/Grid[" + std::to_string(steps) + "]/Information[" +
                  std::to_string(inclusions) + "]/Attribute");
}

void XdmfWriter::addInformation(const std::string& name, const std::string& value) {
  CHECK_THAT(!this->meshAdded, "information on <" << filename << "> must stand before the mesh!");
  xdmf.beginElement("Information");
  xdmf.setName(name);
  xdmf.setValue(value);
  xdmf.endElement("Information");
}

}  // namespace dataio

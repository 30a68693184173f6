#include "dataio/Factory.h"

#include "dataio/H5Reader.h"
#include "dataio/H5Writer.h"
#include "dataio/ResultReader.h"
#include "dataio/XdmfWriter.h"
#include "dataio/json/JSONReader.h"

namespace dataio {

api::IH5Reader* Factory::createH5Reader(const std::string& file) {
  return new H5Reader(file);
}

api::IH5Writer* Factory::createH5Writer(const std::string& file) {
  return new H5Writer(file);
}

api::IH5Writer* Factory::createH5Writer(const std::string& file, const std::string& access) {
  return new H5Writer(file, access);
}

api::IH5RecordWriter* Factory::createRecordWriter(const std::string& file,
                                                  const std::string& access) {
  return new H5Writer(file, access);
}

api::IResultReader* Factory::createResultReader(const std::string& file) {
  return new ResultReader(file);
}

api::ICommandFileReader* Factory::createCommandFileReader(const std::string& input) {
  return new JSONReader(input);
}

api::IXdmfWriter* Factory::createXdmfWriter(const std::string& file) {
  return new XdmfWriter(file);
}

api::IViewerXdmfWriter* Factory::createViewerXdmfWriter(const std::string& file) {
  return new XdmfWriter(file, XdmfForm::ForViewers);
}

}  // namespace dataio

#include "setup/runfile/RunFile.h"

#include <array>
#include <filesystem>
#include <memory>
#include <system_error>

#include "api/IH5Writer.h"
#include "common/NewFile.h"
#include "common/check.h"
#include "common/console.h"
#include "dataio/Archive.h"
#include "dataio/Factory.h"
#include "model/components.h"
#include "setup/runfile/contents.h"

namespace console = common::console;

namespace setup {

namespace {

/// End of a kernel's window of execution, beyond any run [s].
constexpr double FOREVER = 1e12;

class RunFile {
 public:
  RunFile(api::IH5Writer& newWriter, const api::IModel& newModel, const Domain& newDomain)
      : writer(newWriter), model(newModel), domain(newDomain) {}

  void writeSets() {
    for (const model::SetID id : model.getSets()) {
      writer.writeIntScalar(model.getSet(id)->getH5Path(), content(id).size(domain));
    }
  }

  void writeMaps() {
    for (const model::MapID id : model.getMaps()) {
      const api::IMap& map = *model.getMap(id);
      const SetContent& from = content(map.getSet()->getID());
      write(map, from.size(domain), from.maps.at(id)(domain));
    }
  }

  void writeData() {
    for (const model::DataID id : model.getDats()) {
      const api::IData& data = *model.getData(id);
      if (data.isSimulationOnly()) continue;
      const SetContent& on = content(data.getSet()->getID());
      const int elements = on.size(domain);
      std::visit([&](auto values) { writeDatum(data, elements, values(domain)); }, on.data.at(id));
    }
  }

  void writeParameters(const Study& study) {
    for (const model::ParameterID id : model.getPars()) {
      const api::IParameter& parameter = *model.getParameter(id);
      if (parameter.isSimulationOnly()) continue;
      const ParameterValue value = parameterValue(id, study);
      std::visit([&](const auto& item) { writeParameter(parameter.getH5Path(), item); }, value);
    }
  }

  void writeSchedule() {
    std::vector<std::vector<int>> ids;
    std::vector<std::vector<double>> windows;
    for (const model::KernelID id : model.getKernels()) {
      ids.push_back({static_cast<int>(id)});
      windows.push_back({0.0, 0.0, isRunOnce(id) ? 0.0 : FOREVER});
    }
    writer.writeIntVecVec(model::Kernel::kernelPath, ids);
    writer.writeDoubleVecVec(model::Kernel::kernelTimingPath, windows);
  }

 private:
  /// Kernels that prepare the cells run before the first step, all others in every step.
  static bool isRunOnce(model::KernelID id) {
    using enum model::KernelID;
    return id == InitCellHydFeatures || id == InitCellMorFeatures || id == InitFrictionFeatures;
  }

  static const SetContent& content(model::SetID id) { return setContents().at(id); }

  /// Results take a single value over as a scalar.
  template <class T>
  void writeDatum(const api::IData& data, int elements, const std::vector<T>& values) {
    if (elements == 1 && data.getSize() == 1) {
      writeScalar(data.getH5Path(), values.at(0));
    } else {
      write(data, elements, values);
    }
  }

  /// Nobody reads an empty list of texts.
  void writeDatum(const api::IData& data, int elements, const std::vector<std::string>& values) {
    if (elements > 0) writer.writeStringVec(data.getH5Path(), elements, values);
  }

  template <class T>
  void write(const api::IBaseSet& item, int rows, const std::vector<T>& values) {
    const int columns = item.getSize();
    const auto width = static_cast<std::size_t>(columns);
    CHECK_THAT(values.size() == static_cast<std::size_t>(rows) * width,
               "<" << item.getH5Path() << "> has " << values.size() << " values, but needs " << rows
                   << " rows of " << columns);
    std::vector<const T*> pointers;
    for (std::size_t row = 0; row < values.size(); row += width) pointers.push_back(&values[row]);
    writeArray(item.getH5Path(), rows, columns, pointers.data());
  }

  // clang-format off
  void writeParameter(const std::string& path, int value)    { writer.writeIntScalar(path, value); }
  void writeParameter(const std::string& path, double value) { writer.writeDoubleScalar(path, value); }
  void writeParameter(const std::string& path, const std::array<int, 2>& value) {
    writer.writeIntVecVec(path, {{value[0], value[1]}});
  }
  void writeScalar(const std::string& path, int value)    { writer.writeIntScalar(path, value); }
  void writeScalar(const std::string& path, double value) { writer.writeDoubleScalar(path, value); }
  void writeArray(const std::string& path, int rows, int columns, const int* const* values) {
    writer.writeIntArray(path, rows, columns, values);
  }
  void writeArray(const std::string& path, int rows, int columns, const double* const* values) {
    writer.writeDoubleArray(path, rows, columns, values);
  }
  // clang-format on

  api::IH5Writer& writer;
  const api::IModel& model;
  const Domain& domain;
};

void writeAll(const std::string& file, const api::IModel& model, const Domain& domain,
              const Study& study) {
  const std::unique_ptr<api::IH5RecordWriter> writer(
      dataio::Factory::createRecordWriter(file, "w"));
  dataio::Archive::addModel(writer.get(), study.document);
  RunFile runFile(*writer, model, domain);
  runFile.writeSets();
  runFile.writeMaps();
  runFile.writeData();
  runFile.writeParameters(study);
  runFile.writeSchedule();
  writer->flush();  // tells of a full disk; the destructor could not
}

common::Sources sourcesOf(const Study& study) {
  common::Sources sources = {{"study document", study.file}};
  if (const auto* mesh = std::get_if<MeshFile>(&study.mesh)) {
    sources.push_back({"mesh file", mesh->file});
  }
  return sources;
}

}  // namespace

void requireRunFile(const std::string& file) {
  const std::filesystem::path path(file);
  const std::string name = path.filename().string();
  if (name.size() <= 3 || name.find('.') != name.size() - 3 || !name.ends_with(".h5")) {
    console::fail("run file <", file, ">: the name must end in \".h5\" and hold no other dot");
  }
  std::error_code ignored;
  if (path.has_parent_path() && !std::filesystem::is_directory(path.parent_path(), ignored)) {
    console::fail("run file <", file, ">: there is no folder <", path.parent_path().string(), ">");
  }
  const std::size_t afterLeadingDots = file.find_first_not_of('.');
  if (file.find('.', afterLeadingDots) != file.size() - 3) {
    console::info("run file <", file, ">: start the simulation in its folder, as a path with ",
                  "further dots is not accepted there");
  }
}

void writeRunFile(const std::string& file, const api::IModel& model, const Domain& domain,
                  const Study& study) {
  common::NewFile target(file, sourcesOf(study));
  try {
    writeAll(target.unfinished(), model, domain, study);
  } catch (const BaseException&) {
    throw;
  } catch (const std::exception& fault) {
    console::fail("run file <", file, "> cannot be written: ", fault.what());
  }
  target.finish();
}

}  // namespace setup

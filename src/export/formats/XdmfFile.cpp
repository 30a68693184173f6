#include "export/formats/XdmfFile.h"

#include <filesystem>
#include <fstream>
#include <iterator>

#include "common/console.h"
#include "dataio/Factory.h"
#include "export/results/origin.h"

namespace console = common::console;
namespace fs = std::filesystem;

namespace exporter {

namespace {

/// The builder does not tell of a full disk.
bool isComplete(const std::string& file) {
  std::ifstream stream(file, std::ios::binary);
  const std::string text{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
  return text.ends_with("</Xdmf>\n");
}

}  // namespace

std::string nameFrom(const std::string& document, const std::string& file) {
  const fs::path folder = fs::absolute(document).lexically_normal().parent_path();
  std::string name = fs::absolute(file).lexically_normal().lexically_relative(folder);
  if (name.find(':') != std::string::npos) {
    console::fail("file <", name, ">: a name in XDMF must not hold a colon");
  }
  return name;
}

XdmfFile::XdmfFile(const Results& results, const std::string& document, const std::string& data)
    : file(document, results.sources()),
      name(document),
      relative(nameFrom(document, data)),
      xdmf(dataio::Factory::createViewerXdmfWriter(document)) {
  xdmf->addInformation("program", programName());
  xdmf->addInformation("history", historyOf(results.file()));
  xdmf->addMesh(static_cast<int>(results.mesh().cells.size()), relative, "CellsAll/Topology",
                static_cast<int>(results.mesh().nodes.size()), relative, "NodesAll/Coordnts", 3);
}

void XdmfFile::finish() {
  xdmf->write(file.unfinished());
  if (!isComplete(file.unfinished())) {
    console::fail("file <", name,
                  "> cannot be written: is the disk full, or the folder not yours?");
  }
  file.finish();
}

}  // namespace exporter

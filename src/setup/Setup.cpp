#include "setup/Setup.h"

#include <chrono>
#include <memory>

#include "api/IModel.h"
#include "common/console.h"
#include "model/Factory.h"
#include "setup/domain/Domain.h"
#include "setup/report.h"
#include "setup/runfile/RunFile.h"
#include "setup/study/Study.h"

namespace setup {

void makeRunFile(const std::string& study, const std::string& runFile) {
  const auto start = std::chrono::steady_clock::now();
  requireRunFile(runFile);
  const Study described = readStudy(study);
  const std::unique_ptr<api::IModel> model(
      model::Factory::getModelFromCommandFile(described.document));
  model->create();
  const Domain domain = buildDomain(described);
  writeRunFile(runFile, *model, domain, described);

  if (!described.name.empty()) common::console::info("study <", described.name, ">");
  printReport(*model, domain, described);
  const std::chrono::duration<double> spent = std::chrono::steady_clock::now() - start;
  common::console::info("run file <", runFile, "> written in ", spent.count(), " s");
}

}  // namespace setup

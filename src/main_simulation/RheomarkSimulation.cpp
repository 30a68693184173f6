#include "main_simulation/RheomarkSimulation.h"

#include <cstdlib>

#include "common/check.h"
#include "common/sources.h"
#include "dataio/H5FileNameDefinitions.h"
#include "main_simulation/SimulationSchema.h"
#include "simulation/RHEOdomain.h"

RheomarkSimulation::RheomarkSimulation(const char* name) : RheomarkMain(name) {
  schema = SIMULATION_SCHEMA;
}

void RheomarkSimulation::addArguments() {
  runArg = std::make_unique<TCLAP::ValueArg<std::string>>(
      "r", "runfile", "h5 file with model definition", true, "", "string");
  progressArg =
      std::make_unique<TCLAP::SwitchArg>("p", "progress", "print simulation progress", false);
  debugArg =
      std::make_unique<TCLAP::SwitchArg>("d", "debug", "print IDs showing numerical issues", false);
  outputArg = std::make_unique<TCLAP::ValueArg<std::string>>(
      "o", "output", "name of .h5 file for storing results (must contain ending .h5)", false,
      "results.h5", "string");
  add(runArg.get());
  add(progressArg.get());
  add(debugArg.get());
  add(outputArg.get());

  // The command line is not parsed yet: this keeps the two defaults apart, nothing more. A results
  // file gets a name of its own, so users may give both options the same value.
  if (outputArg->getValue() == runArg->getValue()) {
    common::failCheck("this->outputArg->getValue() != this->runArg->getValue()",
                      "runfile <" + runArg->getValue() + "> cannot be equal to output <" +
                          outputArg->getValue() + "> ",
                      "src/main_simulation", 37);
  }
}

// A name without extension is none of a results file, and refused when one is made.
std::string RheomarkSimulation::fileToBeWritten() const {
  using Names = dataio::H5FileNameDefinitions;
  if (!getArchive().empty()) return getArchive();
  const std::string& name = outputArg->getValue();
  return name.find(Names::H5EXTENSION) == std::string::npos ? name : Names::getResultFileName(name);
}

// A failure leaves the domain object alone: the process ends without shutting the runtime down.
void RheomarkSimulation::executionContent() {
  common::requireNoSource(fileToBeWritten(),
                          {{"command file", getJsonFile()}, {"run file", runArg->getValue()}});
  simulation::RHEOdomain* domain =
      simulation::RHEOdomain::getInstance(getJsonFile(), runArg->getValue());
  if (getArchive().empty()) {
    domain->setParallel(getNthreads());
    domain->init(getLogLevel(), progressArg->getValue(), debugArg->getValue(),
                 outputArg->getValue());
    domain->run();
  } else {
    domain->printHash(getArchive());
  }
  const int signal = domain->endedBySignal();
  delete domain;
  // As shells report it; the footer is for runs that came to their regular end.
  if (signal != 0) std::exit(128 + signal);
}

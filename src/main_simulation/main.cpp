// Entry point of the executable `simulation`.
#include "common/process.h"
#include "main_simulation/RheomarkSimulation.h"

int main(int argc, char** argv) {
  common::startProcess();
  RheomarkSimulation application("simulation");
  application.parseCmdLine(argc, argv);
  return application.go();
}

// Entry point of the executable `simulation`.
#include <cstdlib>

#include "common/standard_streams.h"
#include "main_simulation/RheomarkSimulation.h"

int main(int argc, char** argv) {
  common::openStandardStreams();
  // HDF5 locks files it opens. A viewer that holds the results file open would end the run, which
  // reopens the file for each record; users who set the variable know what they want.
  setenv("HDF5_USE_FILE_LOCKING", "FALSE", 0);
  RheomarkSimulation application("simulation");
  application.parseCmdLine(argc, argv);
  return application.go();
}

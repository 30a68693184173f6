#include "simulation/kernels/Parameters.h"

double G_REAL[PARAMETER_SLOTS] = {};
int G_INT[PARAMETER_SLOTS] = {};
int G_Debug = 0;

// What kernel bodies tell the user. Kept out of the bodies: they do no input or output.
#pragma once

namespace kernels {

/// Reports a negative depth [m], on standard output.
void reportMassBalance(double depth);

/// Reports a negative depth [m], in debug mode together with its cell.
/// @param cell number of the cell; looked at only if G_Debug is set
void reportMassBalance(double depth, const int* cell);

/// In debug mode, reports a fixed bed that the bed load of this step would cut into, on standard
/// output. Nothing happens otherwise.
/// @param depth depth below the fixed bed [m]; @param cell number of the cell
void reportOverdraft(double depth, const int* cell);

/// Reports a bed below its fixed bed, on standard output.
/// @param bed,fixedBed elevations [m]
void reportFixedBedDeficit(double bed, double fixedBed);

}  // namespace kernels

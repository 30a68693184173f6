// What the runtime knows and tells about itself: the clock, the timing record of each loop, the
// timing table at the end of a run and the list of declarations at its start.
//
//   op_timing_realloc(slot);                    // OP_kernels[slot] is there now
//   op_timers_core(&cpu, &wall);
//   ...
//   OP_kernels[slot].time += end - start;
//   op_timing_output();
#pragma once

/// Stores the seconds since the epoch, with microsecond resolution, in `wall`; `cpu` is left as is.
void op_timers(double* cpu, double* wall);
void op_timers_core(double* cpu, double* wall);

/// Makes sure that the timing record of a slot exists, and makes it the current one. Records move
/// when their array grows. Ends the process if memory runs out.
void op_timing_realloc(int slot);

/// The same, with new records that time `threads` threads each.
void op_timing_realloc_manytime(int slot, int threads);

/// Stores `value` and its square.
void op_compute_moment(double value, double* first, double* second);

/// Stores the mean of the values and the mean of their squares, 0 if no value counts.
/// @param ignore_zeros if true, zeros do not count
void op_compute_moment_across_times(const double* values, int count, bool ignore_zeros,
                                    double* first, double* second);

/// Prints the timing table: one line for each loop that has run.
void op_timing_output();
void op_timing_output_core();

/// Writes a shorter table, without plans and communication, to a file. It lists the times per
/// thread: those of a loop that was timed as a whole are 0 until op_timing_output has run. Ends the
/// process with status 1 if the file cannot be written.
void op_timing_output_2_file(const char* path);

/// Writes one line of comma-separated values for each loop and thread that took time. A file that
/// cannot be written is reported on standard output, and the call returns.
void op_timings_to_csv(const char* path);

/// Prints all sets, maps and dats, if the diagnostic level is at least 2.
void op_diagnostic_output();

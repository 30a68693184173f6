#include "op/core/op_rt_support.h"

#include <sys/time.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdio>

#include "op/core/op_lib_core.h"
#include "op/core/op_seq.h"
#include "op/core/op_util.h"

namespace {

// clang-format off
constexpr const char* TABLE_HEAD =
    "\n  count   plan time     MPI time(std)        time(std)           GB/s      GB/s   kernel name "
    "\n -------------------------------------------------------------------------------------------";
// clang-format on

constexpr int SPARE_SLOTS = 10;  // records made beyond the one that is asked for

// A loop that was timed as a whole hands its time to its one thread.
void complete_times(op_kernel& kernel) {
  if (kernel.ntimes == 1 && kernel.times[0] == 0.0 && kernel.time != 0.0) {
    kernel.times[0] = kernel.time;
  }
}

double longest_time(const op_kernel& kernel) {
  return *std::max_element(kernel.times, kernel.times + kernel.ntimes);
}

double floored(double bandwidth) {
  return bandwidth > 0.0 ? bandwidth : 0.0;
}

void print_timing(op_kernel& kernel) {
  complete_times(kernel);
  const double nanoseconds = longest_time(kernel) * 1e9;
  double m1 = 0.0;
  double m2 = 0.0;
  double p1 = 0.0;
  double p2 = 0.0;
  op_compute_moment_across_times(kernel.times, kernel.ntimes, true, &m1, &m2);
  op_compute_moment(kernel.mpi_time, &p1, &p2);
  const double p_deviation = std::sqrt(p2 - p1 * p1);
  const double m_deviation = std::sqrt(m2 - m1 * m1);
  if (kernel.transfer2 < 1e-8F) {
    const double used = floored(kernel.transfer / (nanoseconds - kernel.mpi_time));
    std::printf(" %6d;  %8.4f;  %8.4f(%8.4f);  %8.4f(%8.4f);  %8.4f;         ;   %s \n",
                kernel.count, kernel.plan_time, p1, p_deviation, m1, m_deviation, used,
                kernel.name);
    return;
  }
  const double d = nanoseconds - kernel.plan_time - kernel.mpi_time;
  std::printf(" %6d;  %8.4f;  %8.4f(%8.4f);  %8.4f(%8.4f); %8.4f; %8.4f;   %s \n", kernel.count,
              kernel.plan_time, p1, p_deviation, m1, m_deviation, floored(kernel.transfer / d),
              floored(kernel.transfer2 / d), kernel.name);
}

void write_timing(std::FILE* file, const op_kernel& kernel) {
  const double time = longest_time(kernel);
  const double used = kernel.transfer / (time * 1e9);
  if (kernel.transfer2 < 1e-8F) {
    std::fprintf(file, " %6d  %8.4f %8.4f            %s \n", kernel.count, time, used, kernel.name);
    return;
  }
  std::fprintf(file, " %6d  %8.4f %8.4f %8.4f   %s \n", kernel.count, time, used,
               kernel.transfer2 / (time * 1e9), kernel.name);
}

void write_timings(std::FILE* file) {
  std::fprintf(file, "\n  count     time     GB/s     GB/s   kernel name ");
  std::fprintf(file, "\n ----------------------------------------------- \n");
  float total = 0.0F;
  for (int i = 0; i < OP_kern_max; ++i) {
    if (OP_kernels[i].count <= 0) continue;
    write_timing(file, OP_kernels[i]);
    total += static_cast<float>(longest_time(OP_kernels[i]));
  }
  std::fprintf(file, "Total kernel time = %f\n", total);
}

void write_values(std::FILE* file, const op_kernel& kernel) {
  for (int j = 0; j < kernel.ntimes; ++j) {
    if (kernel.times[j] == 0.0) continue;
    std::fprintf(file, "%d,%d,%d,%d,%d,%f,%f,%f,%f,%f,%s\n", 0, j, 1, kernel.ntimes, kernel.count,
                 kernel.times[j], kernel.plan_time, kernel.mpi_time, kernel.transfer / 1e9F,
                 kernel.transfer2 / 1e9F, kernel.name);
  }
}

// Some errors show when the last lines leave the buffer. @return false if something is lost
bool close_written(std::FILE* file) {
  const bool isWritten = std::ferror(file) == 0;
  return std::fclose(file) == 0 && isWritten;
}

void print_sets() {
  std::printf("\n       set       size\n");
  std::printf("  -------------------\n");
  for (int i = 0; i < OP_set_index; ++i) {
    std::printf("%10s %10d\n", OP_set_list[i]->name, OP_set_list[i]->size);
  }
}

void print_maps() {
  std::printf("\n       map        dim       from         to\n");
  std::printf("  -----------------------------------------\n");
  for (int i = 0; i < OP_map_index; ++i) {
    const op_map map = OP_map_list[i];
    std::printf("%10s %10d %10s %10s\n", map->name, map->dim, map->from->name, map->to->name);
  }
}

void print_dats() {
  std::printf("\n       dat        dim        set\n");
  std::printf("  ------------------------------\n");
  for (const op_dat_entry* entry = OP_dat_list.first; entry != nullptr; entry = entry->next) {
    std::printf("%10s %10d %10s\n", entry->dat->name, entry->dat->dim, entry->dat->set->name);
  }
}

}  // namespace

void op_timers(double* cpu, double* wall) {
  op_timers_core(cpu, wall);
}

void op_timers_core(double* /*cpu*/, double* wall) {
  timeval now{};
  gettimeofday(&now, nullptr);
  *wall = static_cast<double>(now.tv_usec) * 1e-6 + static_cast<double>(now.tv_sec);
}

void op_timing_realloc(int slot) {
  op_timing_realloc_manytime(slot, 1);
}

void op_timing_realloc_manytime(int slot, int threads) {
  OP_kern_curr = slot;
  if (slot < OP_kern_max) return;
  const int capacity = slot + SPARE_SLOTS;
  const auto bytes = static_cast<std::size_t>(capacity) * sizeof(op_kernel);
  OP_kernels = static_cast<op_kernel*>(op_realloc(OP_kernels, bytes));
  if (OP_kernels == nullptr) op_fail(-1, " op_timing_realloc error ");
  for (int i = OP_kern_max; i < capacity; ++i) {
    op_kernel kernel{};
    kernel.name = "unused";
    kernel.ntimes = threads;
    kernel.times =
        static_cast<double*>(op_calloc(static_cast<std::size_t>(threads), sizeof(double)));
    if (kernel.times == nullptr) op_fail(-1, " op_timing_realloc error ");
    OP_kernels[i] = kernel;
  }
  OP_kern_max = capacity;
}

void op_compute_moment(double value, double* first, double* second) {
  *first = value;
  *second = value * value;
}

void op_compute_moment_across_times(const double* values, int count, bool ignore_zeros,
                                    double* first, double* second) {
  double sum = 0.0;
  double squares = 0.0;
  int counted = 0;
  for (int i = 0; i < count; ++i) {
    if (ignore_zeros && values[i] == 0.0) continue;
    sum += values[i];
    squares += values[i] * values[i];
    ++counted;
  }
  *first = counted == 0 ? 0.0 : sum / counted;
  *second = counted == 0 ? 0.0 : squares / counted;
}

void op_timing_output() {
  op_timing_output_core();
}

void op_timing_output_core() {
  if (OP_kern_max < 1) return;
  if (op_is_root() != 0) {
    std::printf("%s\n", TABLE_HEAD);
  }
  for (int i = 0; i < OP_kern_max; ++i) {
    if (OP_kernels[i].count > 0 && op_is_root() != 0) print_timing(OP_kernels[i]);
  }
}

void op_timing_output_2_file(const char* path) {
  std::FILE* const file = std::fopen(path, "w+");
  if (file == nullptr) op_fail(1, "Bad output file");
  if (OP_kern_max >= 1) write_timings(file);
  if (!close_written(file)) op_fail(1, "Bad output file");
}

void op_timings_to_csv(const char* path) {
  std::FILE* const file = std::fopen(path, "w");
  if (file == nullptr) {
    std::printf("ERROR: Failed to open file for writing: '%s'\n", path);
    return;
  }
  std::fprintf(file,
               "rank,thread,nranks,nthreads,count,total time,plan time,mpi time,GB used,GB "
               "total,kernel name\n");
  for (int i = 0; i < OP_kern_max; ++i) {
    if (OP_kernels[i].count <= 0) continue;
    complete_times(OP_kernels[i]);
    write_values(file, OP_kernels[i]);
  }
  if (!close_written(file)) std::printf("ERROR: Failed to write file: '%s'\n", path);
}

void op_diagnostic_output() {
  if (OP_diags < 2) return;
  std::printf("\n  OP diagnostic output\n");
  std::printf("  --------------------\n");
  print_sets();
  print_maps();
  print_dats();
  std::printf("\n");
}

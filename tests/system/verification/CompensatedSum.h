// A sum whose error does not grow with the number of its terms.
//
//   A. Neumaier: Rundungsfehleranalyse einiger Verfahren zur Summation endlicher Summen.
//   Zeitschrift für Angewandte Mathematik und Mechanik 54 (1), 1974, 39-51.
#pragma once

#include <cmath>

namespace verification {

class CompensatedSum {
 public:
  void add(double term) {
    const double next = sum + term;
    lost += std::abs(sum) >= std::abs(term) ? (sum - next) + term : (term - next) + sum;
    sum = next;
  }
  double value() const { return sum + lost; }

 private:
  double sum = 0.0;
  double lost = 0.0;
};

}  // namespace verification

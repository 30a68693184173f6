// What kernel bodies tell the user. Bodies do no input or output: they note what they have found,
// and the frame of the loop has it printed, in the order of the elements.
#pragma once

namespace kernels {

/// What a body has found.
enum class Finding {
  negativeDepth,        ///< {depth [m]}
  negativeDepthInCell,  ///< {depth [m]} of a cell
  overdraft,            ///< {depth below the fixed bed [m]} of a cell
  belowFixedBed,        ///< {bed, fixed bed} [m]
};

/// One finding at one element.
struct Notice {
  Finding finding;
  int element;    ///< of the loop's set: backends that visit elements in any order sort by it
  int cell;       ///< number of the cell to name; 0 if the finding has none
  double first;   ///< the values, as the finding tells
  double second;  ///< 0 if the finding has one value
};

/// Takes the notice of one element: a body has room for one.
class Diagnostics {
 public:
  using Notice = kernels::Notice;

  /// @param noticesOfLoop room for the next notice at index *noticeCount
  Diagnostics(Notice* noticesOfLoop, int* noticeCount, int elementNumber)
      : notices(noticesOfLoop), count(noticeCount), element(elementNumber) {}

  /// @param depth [m]
  void negativeDepth(double depth) const { note(Finding::negativeDepth, 0, depth); }
  void negativeDepth(double depth, int cell) const {
    note(Finding::negativeDepthInCell, cell, depth);
  }
  /// A fixed bed that the bed load of this step would cut into.
  /// @param depth depth below the fixed bed [m]
  void overdraft(double depth, int cell) const { note(Finding::overdraft, cell, depth); }
  /// @param bed,fixedBed elevations [m]
  void belowFixedBed(double bed, double fixedBed) const {
    note(Finding::belowFixedBed, 0, bed, fixedBed);
  }

 private:
  void note(Finding finding, int cell, double first, double second = 0.0) const {
    notices[(*count)++] = {finding, element, cell, first, second};
  }

  Notice* notices;
  int* count;
  int element;
};

}  // namespace kernels

// SPDX-License-Identifier: GPL-3.0-or-later

#include "bench/Budget.h"

// How the cost of each operation grows with 1, 10 and 100 times the frames, labels, strides,
// parameters or events.
namespace {

// What the caches of the machine add to a cost that grows as the work does.
constexpr double kAsTheWork = 1.15;
constexpr double kNot = 0.1;
constexpr double kAsItsSquare = 2.15;

}  // namespace

int main(int argc, char** argv) {
  return bench::RunWithGrowths(argc, argv,
                               {{"OpenByFrames", kNot},
                                {"PointByFrames", kAsTheWork},
                                {"ChannelByFrames", kAsTheWork},
                                {"PointListingByFrames", kAsTheWork},
                                {"ChannelListingByFrames", kAsTheWork},
                                {"SplineByFrames", kAsTheWork},
                                {"NormalizedByFrames", kAsTheWork},
                                {"MeasuresByFrames", kAsTheWork},
                                {"OpenByLabels", kAsTheWork},
                                {"LabelListByLabels", kAsTheWork},
                                {"SearchByLabels", kAsTheWork},
                                {"LastPointByLabels", kAsTheWork},
                                {"OpenByStrides", kAsTheWork},
                                {"EventsByStrides", kAsTheWork},
                                {"MeasuresByStrides", kAsTheWork},
                                {"NormalizedByStrides", kAsTheWork},
                                {"GcdByStrides", kAsTheWork},
                                {"OpenByParams", kAsTheWork},
                                {"AllGroupsByParams", kAsTheWork},
                                {"AllParamsByParams", kAsTheWork},
                                {"LastParamByParams", kAsTheWork},
                                {"TreeByParams", kAsTheWork},
                                {"SortOfEvents", kAsItsSquare},
                                {"RemovalOfRepeats", kAsItsSquare}});
}

#include "model/Kernel.h"

#include <gmock/gmock.h>

#include "model/Set.h"
#include "model/reports.h"

namespace model {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class KernelTest : public testing::Test {
 protected:
  Set cells{SetID::CellsAll, "CellsAll", "all cells"};
  Kernel update{KernelID::Update, "Update", "advances", &cells};
};

TEST_F(KernelTest, KnowsWhereItsScheduleStands) {
  EXPECT_STREQ(Kernel::kernelPath, "kernels/ID");
  EXPECT_STREQ(Kernel::kernelTimingPath, "kernels/execution");
  EXPECT_EQ(Kernel::kernelTimingLength, 3);
}

TEST_F(KernelTest, HasThreeTimingValuesOnASet) {
  cells.setSize(5);
  EXPECT_EQ(update.getID(), KernelID::Update);
  EXPECT_EQ(update.getSize(), 3);
  EXPECT_EQ(update.getSet(), &cells);
  EXPECT_THAT(update.getDimension(), ElementsAre(5, 3));
  EXPECT_EQ(update.getH5Path(), "CellsAll/Update");
  EXPECT_FALSE(update.isSimulationOnly());
  EXPECT_FALSE(update.isSetupOnly());
}

TEST_F(KernelTest, HasNoOptionalDataUntilTheyAreSet) {
  EXPECT_THAT(update.getOptionalData(), IsEmpty());
  update.setOptionalData({DataID::FluxesMo, DataID::ChezyCoe});
  EXPECT_THAT(update.getOptionalData(), ElementsAre(DataID::FluxesMo, DataID::ChezyCoe));
}

TEST_F(KernelTest, PrintsNameAndSet) {
  EXPECT_EQ(reports::outputOf([&] { update.print(); }), "Kernel: Update\n -> on set CellsAll\n");
}

}  // namespace
}  // namespace model

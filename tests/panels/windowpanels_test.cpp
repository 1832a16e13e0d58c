// The panels in the main window: showing a tab fills its panel from the open file, and the
// choosers of the other tabs take the file's counts.
#include "currentmodel.h"
#include "editorfixture.h"
#include "modelinmemory.h"
#include "viewsettings.h"

#include <QLineEdit>
#include <QSpinBox>

namespace {

TEST_F(EditorTest, ShowingATabFillsItsPanel) {
    MoxBuilder file;
    file.radius = 321;
    file.nodes = {Node{1, 2, 3, 0}, Node{4, 5, 6, 0}, Node{7, 8, 9, 0}};
    file.root = {0, kNoElement};
    file.streams = {StreamBytes().Hardpoint(27, 2).End().bytes};
    OpenInMemory(CurrentModel(), file);

    Window().SelectTab(kModelInfoTab);
    EXPECT_EQ(Find<QLineEdit>("txt_1_radius")->text(), "321");
    EXPECT_EQ(Find<QSpinBox>("upd_4_node")->maximum(), 2);
    Window().SelectTab(kNodesTab);
    Find<QSpinBox>("upd_4_node")->setValue(2);
    EXPECT_EQ(Find<QLineEdit>("txt_4_x")->text(), "9");
    EXPECT_EQ(View().CurrentTab, kNodesTab);
}

} // namespace

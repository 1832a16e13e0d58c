// Opening from the recent lists: the entries as the menus show them, the window put back as every
// load leaves it, and a damaged file that reports the same trouble for each of its elements.
#include "currentmodel.h"
#include "editorfixture.h"
#include "moxbuilder.h"
#include "programstate.h"
#include "tempdir.h"
#include "viewsettings.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QSpinBox>

#include <filesystem>

namespace {

constexpr const char* kSpins[] = {"upd_3_pb", "upd_3_elem", "upd_4_node", "upd_2_part"};

} // namespace

TEST_F(EditorTest, RecentEntriesOpenTheirFileAndEveryLoadResetsTheWindow) {
    TempDir folder;
    for (const char* name : {"PDEMOF.MOX", "PDEMO.PCX", "PDEMO.3VW"})
        std::filesystem::copy_file(std::filesystem::path(SAMPLE_DIR) / name, folder.file(name));
    const std::string gone = folder.file("GONE.MOX");
    Program().RecentModels = {folder.file("PDEMOF.MOX"), gone, kNoRecent, kNoRecent, kNoRecent};
    Program().RecentProjects[1] = folder.file("PDEMO.3VW");
    Window().UpdateRecentMenus();
    const auto shows = [this](const char* name) {
        const QAction* entry = Find<QAction>(name);
        return entry->isVisible() ? entry->text().toStdString() : std::string("hidden");
    };
    EXPECT_EQ(shows("mnu_f_recent(0)"), "&1  PDEMOF.MOX");
    EXPECT_EQ(shows("mnu_f_recent(1)"), "&2  ") << "a file that is gone has no name";
    EXPECT_EQ(shows("mnu_f_recent(2)"), "hidden");
    EXPECT_EQ(shows("mnu_p_recent(0)"), "hidden");
    EXPECT_EQ(shows("mnu_p_recent(1)"), "&2  PDEMO.3VW");
    EXPECT_TRUE(Find<QAction>("mnu_f_2")->isVisible());
    EXPECT_TRUE(Find<QAction>("mnu_p_1")->isVisible());

    // Everything a load puts back, moved away from its start.
    Window().SelectTab(3);
    for (const char* spin : kSpins)
        Find<QSpinBox>(spin)->setValue(5);
    Find<QCheckBox>("chk_thismox")->setChecked(true);
    for (const char* button : {"Pilot", "LG", "Wing"})
        Window().Button(button)->trigger();
    Find<QAction>("mnu_v_top")->trigger();

    host.answers = {MessageAnswer::No};
    Find<QAction>("mnu_f_recent(0)")->trigger();
    EXPECT_TRUE(CurrentModel().Files[0].Loaded);
    EXPECT_EQ(Window().windowTitle(), "Skylathe - PDEMOF.MOX");
    EXPECT_EQ(Find<QComboBox>("cbo_1_mox")->count(), 7);
    EXPECT_EQ(Find<QComboBox>("cbo_1_mox")->currentText(), "MAIN MODEL (F)");
    EXPECT_FALSE(Find<QCheckBox>("chk_thismox")->isChecked());
    EXPECT_FALSE(View().chk_thismox);
    for (const char* spin : kSpins)
        EXPECT_EQ(Find<QSpinBox>(spin)->value(), 0) << spin;
    for (const auto& [button, image] :
         {std::pair{"Pilot", "PilotAlive"}, {"LG", "LGDown"}, {"Wing", "WingOK"}})
        EXPECT_EQ(Window().Button(button)->property("image").toString(), image);
    EXPECT_EQ(View().CurrentTab, 1);
    EXPECT_TRUE(Find<QFrame>("fra_edit(1)")->isVisible());
    EXPECT_TRUE(Find<QAction>("mnu_v_persp")->isChecked());

    // The file that is gone opens into an empty model and goes to the top of the list.
    Find<QAction>("mnu_f_recent(1)")->trigger();
    EXPECT_FALSE(CurrentModel().Files[0].Loaded);
    EXPECT_EQ(shows("mnu_f_recent(0)"), "&1  ");
    EXPECT_EQ(shows("mnu_f_recent(1)"), "&2  PDEMOF.MOX");

    Find<QAction>("mnu_p_recent(1)")->trigger();
    EXPECT_EQ(Window().windowTitle(), "Skylathe - PDEMO.3VW");
    EXPECT_EQ(shows("mnu_p_recent(0)"), "&1  PDEMO.3VW");
    EXPECT_TRUE(WaitForFrames(1));
}

TEST_F(EditorTest, ADamagedFileWithThousandsOfElementsShowsTwoBoxes) {
    constexpr int kElements = 30000;
    MoxBuilder builder;
    // The first stream never ends, which closes the file; every later element is then reported.
    builder.streams = {StreamBytes().Raw(std::vector<uint8_t>(300 * 4, 1)).bytes};
    builder.numElements = kElements;
    TempDir folder;
    WriteTestFile(folder.file("BROKEN.MOX"), builder.Build());
    Program().RecentModels[0] = folder.file("BROKEN.MOX");
    Window().UpdateRecentMenus();

    Find<QAction>("mnu_f_recent(0)")->trigger();
    ASSERT_EQ(host.messages.size(), 2u);
    EXPECT_EQ(host.messages[0], "Error in MOX file.  Around element number: 0");
    EXPECT_EQ(host.messages[1], "Error in MOX file.  Around element number: 0\n\nThe same message "
                                "came 29999 more times, for 1-29999.");
}

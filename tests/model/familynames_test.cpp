#include "familynames.h"

#include <gtest/gtest.h>

TEST(FamilyNames, IncrementalNamesCountOnFromTheirOwnNumber) {
    EXPECT_EQ(IncrementalName("/m/PLANEF.MOX"), "/m/PLANEF_001.MOX");
    EXPECT_EQ(IncrementalName("/m/PLANEF_001.MOX"), "/m/PLANEF_002.MOX");
    EXPECT_EQ(IncrementalName("/m/PLANEF_009.MOX"), "/m/PLANEF_010.MOX");
    EXPECT_EQ(IncrementalName("/m/PLANEF_099.MOX"), "/m/PLANEF_100.MOX");
    // A fourth digit is written in full; that name has no "_" in eighth place from the end, so
    // the next save starts a new number behind it.
    EXPECT_EQ(IncrementalName("/m/PLANEF_999.MOX"), "/m/PLANEF_1000.MOX");
    EXPECT_EQ(IncrementalName("/m/PLANEF_1000.MOX"), "/m/PLANEF_1000_001.MOX");
    EXPECT_EQ(IncrementalName("C:\\m\\planef_041.mox"), "C:\\m\\planef_042.mox");
}

TEST(FamilyNames, IncrementalNamesNeverChangeTheFolderOrDropLetters) {
    // Three characters behind the underscore that are not a number are part of the name.
    EXPECT_EQ(IncrementalName("/m/MY_ABC.MOX"), "/m/MY_ABC_001.MOX");
    // Without an extension the number goes at the end, never into a folder name.
    EXPECT_EQ(IncrementalName("/d/foo"), "/d/foo_001");
    EXPECT_EQ(IncrementalName("/d_/12.MOX"), "/d_/12_001.MOX");
    EXPECT_EQ(IncrementalName(""), "");
}

TEST(FamilyNames, FamiliesAreToldByFirstLetterAndLetterBeforeTheExtension) {
    EXPECT_EQ(FamilyOf("/m/TMOD1H.MOX"), Family::H);
    EXPECT_EQ(FamilyOf("/m/tmod1s.mox"), Family::H);
    EXPECT_EQ(FamilyOf("/m/PLANEF.MOX"), Family::F);
    EXPECT_EQ(FamilyOf("/m/PANELF.MOX"), Family::F);
    EXPECT_EQ(FamilyOf("/PLANES/XWINGF.MOX"), Family::None) << "only the bare name counts";
    EXPECT_EQ(FamilyOf("C:\\P\\XWINGF.MOX"), Family::None);
    EXPECT_EQ(FamilyLetter("/m/planef.mox"), 'F');
    EXPECT_EQ(FamilyLetter("/m/PLANEA.MOX"), 'A');
    EXPECT_EQ(FamilyLetter(".MOX"), '\0');
    EXPECT_EQ(FamilyStem("/m/planef.mox"), "/m/plane");
    EXPECT_EQ(BareFileName("/m/x/PLANEF.MOX"), "PLANEF.MOX");
    EXPECT_EQ(BareFileName("C:\\Models\\PLANEF.MOX"), "PLANEF.MOX");
    EXPECT_EQ(BareFileName("PLANEF.MOX"), "PLANEF.MOX");
}

TEST(FamilyNames, KindsAndSlots) {
    EXPECT_EQ(FileKindOf("a.mox"), FileKind::Mox);
    EXPECT_EQ(FileKindOf("a.Moy"), FileKind::Moy);
    EXPECT_EQ(FileKindOf("a.3ds"), FileKind::ThreeDS);
    EXPECT_EQ(FileKindOf("a.pcx"), FileKind::Other);
    EXPECT_EQ(FileKindOf("x"), FileKind::Other);

    std::string order;
    for (const ConnectedFile& file : ConnectedFiles(Family::H))
        order += std::to_string(file.slot) + file.ending + " ";
    EXPECT_EQ(order, "2L.MOX 3D.MOX 1S.MOX ");
    order.clear();
    for (const ConnectedFile& file : ConnectedFiles(Family::F))
        order += std::to_string(file.slot) + file.ending[0];
    EXPECT_EQ(order, "1A2B3C4E5G6P");
    EXPECT_EQ(FamilyListRows(Family::H).size(), 4u);
    EXPECT_EQ(FamilyListRows(Family::F).at(6), "P.MOX");
}

TEST(FamilyNames, RecentListLooksAtItsTopEntryOnly) {
    std::array<std::string, 5> list{"a", "b", "c", "d", "NONE"};
    EXPECT_FALSE(PushRecent(list, "a", "x"));
    EXPECT_TRUE(PushRecent(list, "c", "c"));
    EXPECT_EQ(list, (std::array<std::string, 5>{"c", "a", "b", "c", "NONE"}));
    // The new entry may be an entry of the list itself.
    EXPECT_TRUE(PushRecent(list, list[2], list[2]));
    EXPECT_EQ(list, (std::array<std::string, 5>{"b", "c", "a", "b", "NONE"}));
}

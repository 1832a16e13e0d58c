#include "familynames.h"

#include <gtest/gtest.h>

TEST(FamilyNames, IncrementalNamesCountOnFromTheirOwnNumberInTheSameFolder) {
    const std::pair<const char*, const char*> rows[] = {
        {"/m/PLANEF.MOX", "/m/PLANEF_001.MOX"},
        {"/m/PLANEF_009.MOX", "/m/PLANEF_010.MOX"},
        {"/m/PLANEF_099.MOX", "/m/PLANEF_100.MOX"},
        // A fourth digit is written in full; that name has no "_" in eighth place from the end,
        // so the next save starts a new number behind it.
        {"/m/PLANEF_999.MOX", "/m/PLANEF_1000.MOX"},
        {"/m/PLANEF_1000.MOX", "/m/PLANEF_1000_001.MOX"},
        {"C:\\m\\planef_041.mox", "C:\\m\\planef_042.mox"},
        // Three characters behind the underscore that are not a number are part of the name.
        {"/m/MY_ABC.MOX", "/m/MY_ABC_001.MOX"},
        // Without an extension the number goes at the end, never into a folder name.
        {"/d/foo", "/d/foo_001"},
        {"/d_/12.MOX", "/d_/12_001.MOX"},
        {"", ""},
    };
    for (const auto& [name, next] : rows)
        EXPECT_EQ(IncrementalName(name), next) << name;
}

TEST(FamilyNames, OnlyTheBareNameTellsTheFamily) {
    EXPECT_EQ(FamilyOf("/PLANES/XWINGF.MOX"), Family::None);
    EXPECT_EQ(FamilyOf("C:\\P\\XWINGF.MOX"), Family::None);
    EXPECT_EQ(FamilyLetter(".MOX"), '\0');
    EXPECT_EQ(BareFileName("C:\\Models\\PLANEF.MOX"), "PLANEF.MOX");
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

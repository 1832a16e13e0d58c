// The write of one numbered panel field into the record of the current file.
#include "infofields.h"
#include "model.h"
#include "modelinmemory.h"

#include <gtest/gtest.h>

namespace {

MoxBuilder SmallFile() {
    MoxBuilder file;
    file.radius = 500;
    file.parts = {Part{2, 4, 10, 20, 30}};
    file.nodes = {Node{1, 2, 3, 0}, Node{4, 5, 6, 1}};
    file.root = {0, kNoElement};
    file.streams = {
        StreamBytes().MappedPoly(5, {{0, 10, 20}, {1, 30, 40}, {0, 50, 60}}, 9, 8).End().bytes};
    file.SetTexture("OLD.TPC");
    return file;
}

struct WriteCase {
    int32_t field;
    std::string value;
    int16_t i;
    int16_t j;
    InfoWrite result;
    std::string stored;
    int32_t type = kMoxLoaded; // what is open; with nothing open no file is read either
};

class UpdateInfoTest : public ::testing::TestWithParam<WriteCase> {};

TEST_P(UpdateInfoTest, StoresWithinTheFieldsWidthOrKeepsTheRecord) {
    const WriteCase& c = GetParam();
    model owner;
    OpenInMemory(owner, SmallFile());
    owner.M_Type = c.type;
    if (c.type == kNothingLoaded)
        owner.Files.clear();
    EXPECT_EQ(owner.UpdateInfo(c.field, c.value, c.i, c.j), c.result);
    EXPECT_EQ(owner.InfoText(c.field, c.i, c.j).value_or("none"), c.stored);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, UpdateInfoTest,
    ::testing::Values(
        WriteCase{kFieldRadius, "-120", -1, -1, InfoWrite::Written, "-120"},
        WriteCase{kFieldRadius, "40000", -1, -1, InfoWrite::Snapped, "32767"},
        WriteCase{kFieldNrmF, "32768", 0, -1, InfoWrite::Snapped, "32767"},
        WriteCase{kFieldNrmD, "-2147483647", 0, -1, InfoWrite::Written, "-2147483647"},
        WriteCase{kFieldAtt1, "007", 0, -1, InfoWrite::Written, "7"},
        WriteCase{kFieldAtt2, "-5", 0, -1, InfoWrite::Snapped, "0"},
        WriteCase{kFieldNodeX, "", 1, -1, InfoWrite::Refused, "6"},
        WriteCase{kFieldNodeX, "-", 1, -1, InfoWrite::Refused, "6"},
        WriteCase{kFieldNodeX, "1-2", 1, -1, InfoWrite::Refused, "6"},
        WriteCase{kFieldNodeY, "99999999999999999999", 0, -1, InfoWrite::Snapped, "32767"},
        WriteCase{kFieldNodeList, "300", 0, 1, InfoWrite::Refused, "1"},
        WriteCase{kFieldNodeList, "0", 0, 1, InfoWrite::Written, "0"},
        WriteCase{kFieldYMap, "77", 0, 2, InfoWrite::Written, "77"},
        WriteCase{kFieldPartCode, "1", 0, -1, InfoWrite::Written, "1"},
        WriteCase{kFieldNodeB, "3", 2, -1, InfoWrite::Refused, "none"},
        WriteCase{kFieldFlag, "3", 100, -1, InfoWrite::Refused, "none"},
        WriteCase{kFieldXMap, "3", 0, 9, InfoWrite::Refused, "none"},
        WriteCase{2, "3", -1, -1, InfoWrite::Refused, "none"},
        WriteCase{kFieldTexture, "NEW 1.TPC", -1, -1, InfoWrite::Written, "NEW 1.TPC     "},
        WriteCase{kFieldTexture, "ABCDEFGHIJKLMNOPQ", -1, -1, InfoWrite::Written, "ABCDEFGHIJKLMN"},
        WriteCase{kFieldRadius, "7", -1, -1, InfoWrite::Refused, "none", kMoyLoaded},
        WriteCase{kFieldNodeX, "7", 0, -1, InfoWrite::Refused, "none", kNothingLoaded}));

} // namespace

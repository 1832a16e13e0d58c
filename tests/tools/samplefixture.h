// The sample written once into a temporary folder for all the tests of a program, and every
// model file of it read back as the editor reads it.
#pragma once

#include "filerecord.h"
#include "samplefamily.h"
#include "vec3.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

struct ReadModel {
    FileRecord record;
    std::vector<std::string> messages; // shown while it was read
    std::vector<std::string> texturePaths;
};

class SampleFixture : public testing::Test {
protected:
    static void SetUpTestSuite();
    static void TearDownTestSuite();

    static const std::string& Folder();
    static std::string PathOf(const std::string& name);
    // What WriteSample reported writing.
    static const std::vector<std::string>& Written();
    // Every .MOX file of the sample by name, read with READ_MOX.
    static const std::map<std::string, ReadModel>& Models();
    static const FileRecord& Model(const std::string& name);
    // The names of the files of each family, main file first, with their slots.
    static const SampleFamily& Fighter();
    static const SampleFamily& Truck();
};

// A node's position in its file's frame: its part's pivot added.
Vec3 PlacedNode(const FileRecord& record, int node);
// The corners of a piggyback, placed.
std::vector<Vec3> PlacedCorners(const FileRecord& record, const Piggyback& item);

#include "samplefixture.h"

#include "fighterfamily.h"
#include "moxreader.h"
#include "recordinghost.h"
#include "recordingtextureloader.h"
#include "samplevehicle.h"
#include "samplewriter.h"
#include "tempdir.h"

#include <filesystem>
#include <memory>

namespace {

struct SampleState {
    TempDir dir;
    std::vector<std::string> written;
    std::map<std::string, ReadModel> models;
    SampleFamily fighter;
    SampleFamily truck;
};

std::unique_ptr<SampleState>& State() {
    static std::unique_ptr<SampleState> state;
    return state;
}

} // namespace

void SampleFixture::SetUpTestSuite() {
    State() = std::make_unique<SampleState>();
    SampleState& state = *State();
    std::string problem;
    ASSERT_TRUE(WriteSample(state.dir.path().string(), state.written, problem)) << problem;
    ASSERT_TRUE(BuildFighterFamily(state.fighter, problem)) << problem;
    ASSERT_TRUE(BuildVehicleFamily(state.truck, problem)) << problem;
    for (const SampleFamily* family : {&state.fighter, &state.truck}) {
        for (const SampleFile& file : *family) {
            RecordingHost host;
            RecordingTextureLoader textures;
            ReadModel model;
            model.record = READ_MOX(state.dir.file(file.name), static_cast<int16_t>(file.slot));
            model.messages = host.messages;
            for (const auto& request : textures.requests)
                model.texturePaths.push_back(request.path);
            state.models[file.name] = std::move(model);
        }
    }
}

void SampleFixture::TearDownTestSuite() {
    State().reset();
}

const std::string& SampleFixture::Folder() {
    static std::string folder;
    folder = State()->dir.path().string();
    return folder;
}

std::string SampleFixture::PathOf(const std::string& name) {
    return State()->dir.file(name);
}

const std::vector<std::string>& SampleFixture::Written() {
    return State()->written;
}

const std::map<std::string, ReadModel>& SampleFixture::Models() {
    return State()->models;
}

const FileRecord& SampleFixture::Model(const std::string& name) {
    return State()->models.at(name).record;
}

const SampleFamily& SampleFixture::Fighter() {
    return State()->fighter;
}

const SampleFamily& SampleFixture::Truck() {
    return State()->truck;
}

Vec3 PlacedNode(const FileRecord& record, int node) {
    const Node& at = record.Nodes.at(node);
    Vec3 placed{double(at.X), double(at.Y), double(at.Z)};
    if (at.B > 0) {
        const Part& part = record.Parts.at(at.B - 1);
        placed = placed + Vec3{double(part.X), double(part.Y), double(part.Z)};
    }
    return placed;
}

std::vector<Vec3> PlacedCorners(const FileRecord& record, const Piggyback& item) {
    std::vector<Vec3> corners;
    for (int c = 0; c < item.CRN; ++c)
        corners.push_back(PlacedNode(record, item.NodeList.at(c)));
    return corners;
}

// The sample on disk: which files it writes, that every model reads back and resaves unchanged,
// that the families load whole, and what its textures, drawings and project hold.
#include "commands.h"
#include "model.h"
#include "moxwriter.h"
#include "pcxreader.h"
#include "programstate.h"
#include "recordcompare.h"
#include "recordinghost.h"
#include "recordingtextureloader.h"
#include "samplefixture.h"
#include "tempdir.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

namespace {

constexpr int kDrawingScale = 3;

std::vector<uint8_t> ReadBytes(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

std::vector<std::string> TextLines(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    std::stringstream text;
    text << in.rdbuf();
    std::vector<std::string> lines;
    const std::string all = text.str();
    for (std::size_t start = 0; start < all.size();) {
        const std::size_t end = all.find("\r\n", start);
        EXPECT_NE(end, std::string::npos) << "every line ends in CR LF";
        if (end == std::string::npos)
            break;
        lines.push_back(all.substr(start, end - start));
        start = end + 2;
    }
    return lines;
}

struct Box {
    Vec3 low;
    Vec3 high;
};

// The assembled fighter measured from the files as read: every node with its part's pivot and
// its file's hardpoint in the main file, the origin included as the editor measures.
Box MeasureAssembled(const SampleFamily& family, const std::map<std::string, ReadModel>& models) {
    const FileRecord& main = models.at(family.front().name).record;
    Box box;
    for (const SampleFile& file : family) {
        const FileRecord& record = models.at(file.name).record;
        const Node& hardpoint = main.HP[file.slot];
        for (int n = 0; n < record.NumNodes; ++n) {
            const Vec3 at = PlacedNode(record, n) +
                            Vec3{double(hardpoint.X), double(hardpoint.Y), double(hardpoint.Z)};
            box.low = {std::min(box.low.x, at.x), std::min(box.low.y, at.y),
                       std::min(box.low.z, at.z)};
            box.high = {std::max(box.high.x, at.x), std::max(box.high.y, at.y),
                        std::max(box.high.z, at.z)};
        }
    }
    return box;
}

class SampleFiles : public SampleFixture {};

} // namespace

TEST_F(SampleFiles, WritesBothFamiliesTheirTexturesTheDrawingsAndTheProject) {
    const std::vector<std::string> expected = {
        "PDEMOF.MOX",    "PDEMOC.MOX",     "PDEMOE.MOX",      "PDEMOG.MOX", "PDEMO.PCX",
        "PDEMO_TOP.PCX", "PDEMO_LEFT.PCX", "PDEMO_FRONT.PCX", "PDEMO.3VW",  "TMOD1H.MOX",
        "TMOD1S.MOX",    "TMOD1L.MOX",     "TMOD1D.MOX",      "TMOD1.PCX"};
    std::vector<std::string> written;
    for (const std::string& path : Written()) {
        EXPECT_TRUE(std::filesystem::is_regular_file(path)) << path;
        EXPECT_EQ(std::filesystem::path(path).parent_path(), std::filesystem::path(Folder()));
        written.push_back(std::filesystem::path(path).filename().string());
    }
    EXPECT_EQ(written, expected);

    // moxtool sample writes the same, into a folder it creates, and refuses a missing folder.
    TempDir other;
    const std::string folder = other.file("new/sample");
    const ToolCommand* sample = nullptr;
    for (const ToolCommand& command : ToolCommands())
        sample = std::string(command.name) == "sample" ? &command : sample;
    ASSERT_NE(sample, nullptr);
    testing::internal::CaptureStdout();
    EXPECT_EQ(sample->run({folder}), kExitOk);
    const std::string out = testing::internal::GetCapturedStdout();
    for (const std::string& name : expected) {
        EXPECT_NE(out.find(folder + "/" + name), std::string::npos) << name;
        // The same bytes but in the project, which names the files in their own folder.
        if (name != "PDEMO.3VW") {
            EXPECT_EQ(ReadBytes(PathOf(name)), ReadBytes(folder + "/" + name)) << name;
        }
    }
    testing::internal::CaptureStderr();
    EXPECT_EQ(sample->run({}), kExitFailure);
    EXPECT_NE(testing::internal::GetCapturedStderr().find("usage"), std::string::npos);
}

TEST_F(SampleFiles, EveryModelReadsBackUnchangedAndResavesToTheSameBytes) {
    for (const SampleFamily* family : {&Fighter(), &Truck()}) {
        for (const SampleFile& file : *family) {
            SCOPED_TRACE(file.name);
            const ReadModel& read = Models().at(file.name);
            EXPECT_TRUE(read.record.Loaded);
            EXPECT_TRUE(read.messages.empty()) << read.messages.front();
            EXPECT_EQ(RecordDifference(file.record, read.record, true), "");
            for (int slot = 1; slot < kFileSlots; ++slot) {
                EXPECT_EQ(file.record.HP[slot].X, read.record.HP[slot].X);
                EXPECT_EQ(file.record.HP[slot].Y, read.record.HP[slot].Y);
                EXPECT_EQ(file.record.HP[slot].Z, read.record.HP[slot].Z);
            }
            std::vector<uint8_t> saved;
            std::string problem;
            ASSERT_TRUE(BuildMoxBytes(read.record, saved, problem)) << problem;
            EXPECT_EQ(saved, ReadBytes(PathOf(file.name)));
            // The model names its .TPC texture; the editor is shown the .PCX of that name.
            const std::string texture(read.record.Texture.begin(), read.record.Texture.end());
            EXPECT_EQ(texture.substr(0, texture.find('.')) + ".TPC",
                      texture.substr(0, texture.find('\0')));
            ASSERT_EQ(read.texturePaths.size(), 1u);
            EXPECT_EQ(read.texturePaths[0], PathOf(texture.substr(0, texture.find('.')) + ".PCX"));
        }
    }
}

TEST_F(SampleFiles, EachFamilyLoadsWholeWithItsFilesAtTheirHardpoints) {
    ResetProgramState();
    RecordingHost host;
    host.answers = {MessageAnswer::Yes, MessageAnswer::Yes};
    model fighter;
    std::string name = PathOf("PDEMOF.MOX");
    fighter.Load(name);
    ASSERT_EQ(fighter.Files.size(), std::size_t(kFileSlots));
    for (int slot = 0; slot < 7; ++slot)
        EXPECT_EQ(fighter.Files[slot].Loaded, slot == 0 || slot == 3 || slot == 4 || slot == 5)
            << slot;
    // HP(3) takes the nose art to the left of the nose, HP(4) and HP(5) the wings to the roots.
    const auto& hp = fighter.Files[0].HP;
    EXPECT_EQ(std::vector<int>({hp[3].X, hp[3].Y, hp[3].Z}), std::vector<int>({-36, -16, 5}));
    EXPECT_EQ(std::vector<int>({hp[4].X, hp[4].Y, hp[4].Z}), std::vector<int>({-8, 15, -5}));
    EXPECT_EQ(std::vector<int>({hp[5].X, hp[5].Y, hp[5].Z}), std::vector<int>({-8, -15, -5}));

    model truck;
    name = PathOf("TMOD1H.MOX");
    truck.Load(name);
    ASSERT_EQ(truck.Files.size(), std::size_t(kFileSlots));
    for (int slot = 0; slot < 7; ++slot)
        EXPECT_EQ(truck.Files[slot].Loaded, slot <= 3) << slot;
    for (int slot = 1; slot <= 3; ++slot) {
        const Node& at = truck.Files[0].HP[slot];
        EXPECT_TRUE(at.X != 0 || at.Y != 0 || at.Z != 0) << "slot " << slot;
    }
    EXPECT_TRUE(host.messages.size() == 2 && host.answers.empty())
        << "one question per family and nothing else";
}

TEST_F(SampleFiles, TexturesAndDrawingsDecodeToTheSizesTheProjectGives) {
    for (const auto& [name, size] : {std::pair{"PDEMO.PCX", 256}, std::pair{"TMOD1.PCX", 128}}) {
        const std::vector<uint8_t> bytes = ReadBytes(PathOf(name));
        const PcxHeader header = ReadPcxHeader(bytes.data(), bytes.size());
        EXPECT_EQ(header.planes, 1) << name << " is a 256-colour texture";
        const PcxResult texture = ReadPcx(PathOf(name));
        ASSERT_TRUE(texture.picture.has_value()) << name << ": " << texture.message;
        EXPECT_EQ(texture.picture->width, size);
        EXPECT_EQ(texture.picture->height, size);
    }
    const Box box = MeasureAssembled(Fighter(), Models());
    const Vec3 extent = box.high - box.low;
    const struct {
        const char* name;
        double width;
        double height;
    } drawings[] = {{"PDEMO_TOP.PCX", extent.x, extent.y},
                    {"PDEMO_LEFT.PCX", extent.x, extent.z},
                    {"PDEMO_FRONT.PCX", extent.y, extent.z}};
    for (const auto& drawing : drawings) {
        const std::vector<uint8_t> bytes = ReadBytes(PathOf(drawing.name));
        EXPECT_EQ(ReadPcxHeader(bytes.data(), bytes.size()).planes, 3) << drawing.name;
        const PcxResult picture = ReadPcx(PathOf(drawing.name));
        ASSERT_TRUE(picture.picture.has_value()) << drawing.name;
        EXPECT_EQ(picture.picture->width, drawing.width * kDrawingScale) << drawing.name;
        EXPECT_EQ(picture.picture->height, drawing.height * kDrawingScale) << drawing.name;
        // White paper around the aircraft, and the aircraft in the middle.
        const auto& rgb = picture.picture->rgb;
        EXPECT_EQ(std::vector<uint8_t>(rgb.begin(), rgb.begin() + 3),
                  std::vector<uint8_t>({255, 255, 255}));
        const std::size_t middle =
            (std::size_t(picture.picture->height / 2) * picture.picture->width +
             picture.picture->width / 2) *
            3;
        EXPECT_NE(rgb[middle], 255) << drawing.name;
    }
}

TEST_F(SampleFiles, TheProjectNamesTheFighterItsSizeTheBoxOfItsDrawingsAndNotes) {
    const Box box = MeasureAssembled(Fighter(), Models());
    auto number = [](double value) { return std::to_string(static_cast<int>(value)); };
    const std::vector<std::string> head = {
        "Type=MOX",
        "F=" + PathOf("PDEMOF.MOX"),
        "A=NONE",
        "B=NONE",
        "C=" + PathOf("PDEMOC.MOX"),
        "E=" + PathOf("PDEMOE.MOX"),
        "G=" + PathOf("PDEMOG.MOX"),
        "P=NONE",
        "",
        "Span=" + number(box.high.y - box.low.y),
        "Length=" + number(box.high.x - box.low.x),
        "Height=" + number(box.high.z - box.low.z),
        "",
        "TopLeftX=" + number(box.low.x),
        "TopLeftY=" + number(box.low.y),
        "TopLeftZ=" + number(box.high.z),
        "",
        "Top=" + PathOf("PDEMO_TOP.PCX"),
        "Left=" + PathOf("PDEMO_LEFT.PCX"),
        "Front=" + PathOf("PDEMO_FRONT.PCX"),
    };
    const std::vector<std::string> lines = TextLines(PathOf("PDEMO.3VW"));
    ASSERT_GT(lines.size(), head.size() + 1);
    EXPECT_EQ(std::vector<std::string>(lines.begin(), lines.begin() + head.size()), head);
    EXPECT_EQ(lines[head.size()].rfind("Notes=", 0), 0u);
    EXPECT_GE(lines.size() - head.size(), 3u) << "a few lines of notes";

    // The editor's project load brings the whole family and the drawings.
    ResetProgramState();
    RecordingHost host;
    RecordingTextureLoader textures;
    model project;
    project.LoadProject(PathOf("PDEMO.3VW"));
    EXPECT_TRUE(host.messages.empty()) << host.messages.front();
    EXPECT_EQ(project.M_Type, kMoxLoaded);
    ASSERT_EQ(project.Files.size(), std::size_t(kFileSlots));
    for (int slot : {0, 3, 4, 5})
        EXPECT_TRUE(project.Files[slot].Loaded) << slot;
    const ProjectRecord& data = Program().ProjectData;
    EXPECT_EQ(data.TopLeftX, box.low.x);
    EXPECT_EQ(data.TopLeftZ, box.high.z);
    EXPECT_EQ(data.Front, PathOf("PDEMO_FRONT.PCX"));
    const auto loadedDrawing = [&](const std::string& name) {
        return std::any_of(
            textures.requests.begin(), textures.requests.end(),
            [&](const auto& request) { return request.path == PathOf(name) && request.slot == 7; });
    };
    EXPECT_TRUE(loadedDrawing("PDEMO_TOP.PCX") && loadedDrawing("PDEMO_LEFT.PCX") &&
                loadedDrawing("PDEMO_FRONT.PCX"));
}

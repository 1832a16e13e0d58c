// moxtool texture IN.pcx OUT.png|OUT.ppm: the picture the editor makes of a texture or drawing.
#include "commandsupport.h"

#include "bytefile.h"
#include "pcxreader.h"
#include "pngfile.h"

#include <algorithm>
#include <filesystem>
#include <iostream>

namespace {

constexpr const char* kUsage = "moxtool texture IN.pcx OUT";
constexpr const char* kDescription =
    "Decodes a PCX texture or 3-view drawing as the editor does and writes the picture, top row\n"
    "first, as PNG or binary PPM (P6) by the extension of OUT (.png or .ppm). A 256-colour file\n"
    "gives its full bytes per line, padding columns included. Exits with status 2 when the file\n"
    "gives no picture.";

enum class OutputKind { Png, Ppm, Unknown };

OutputKind KindOf(const std::string& path) {
    const std::string extension = LowerCaseExtension(path);
    if (extension == ".png")
        return OutputKind::Png;
    if (extension == ".ppm")
        return OutputKind::Ppm;
    return OutputKind::Unknown;
}

std::vector<uint8_t> EncodePpm(const PcxImage& picture) {
    const std::string header =
        "P6\n" + std::to_string(picture.width) + " " + std::to_string(picture.height) + "\n255\n";
    std::vector<uint8_t> bytes(header.begin(), header.end());
    bytes.insert(bytes.end(), picture.rgb.begin(), picture.rgb.end());
    return bytes;
}

// Why no picture came out, for the outcomes the editor passes over in silence.
const char* Reason(PcxOutcome outcome) {
    switch (outcome) {
    case PcxOutcome::Unreadable:
        return "cannot read the file";
    case PcxOutcome::WrongDepth:
        return "not 8 bits per pixel";
    case PcxOutcome::NoPalette:
        return "no 256-colour palette";
    case PcxOutcome::UnsupportedPlanes:
        return "neither 1 nor 3 colour planes";
    case PcxOutcome::BadSize:
        return "the header's width, height or bytes per line is not positive";
    case PcxOutcome::TooLarge:
        return "the picture would need more than 256 MB";
    case PcxOutcome::Picture:
        break;
    }
    return "no picture";
}

int RunTexture(const Arguments& args) {
    const std::string& in = args[0];
    const std::string& out = args[1];
    const OutputKind kind = KindOf(out);
    if (kind == OutputKind::Unknown) {
        std::cerr << "moxtool texture: " << out << ": the output must end in .png or .ppm\n";
        return kExitFailure;
    }

    const PcxResult result = ReadPcx(in);
    if (!result.message.empty())
        std::cerr << result.message << "\n";
    if (!result.picture) {
        std::cerr << "moxtool texture: " << in << ": " << Reason(result.outcome) << "\n";
        return kExitFailure;
    }

    const PcxImage& picture = *result.picture;
    std::vector<uint8_t> bytes;
    if (kind == OutputKind::Png)
        EncodePng(picture.width, picture.height, picture.rgb, bytes);
    else
        bytes = EncodePpm(picture);
    if (bytes.empty() || !WriteFileBytes(out, bytes)) {
        std::cerr << "moxtool texture: cannot write " << out << "\n";
        return kExitFailure;
    }
    return kExitOk;
}

} // namespace

ToolCommand TextureCommand() {
    return {"texture", "decode a PCX texture or drawing to PNG or PPM", kUsage, kDescription,
            [](CLI::App& command) {
                return DefinePositionals(
                    command,
                    {{"IN", "the PCX file"}, {"OUT", "the picture to write, .png or .ppm"}},
                    RunTexture);
            }};
}

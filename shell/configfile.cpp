#include "configfile.h"

#include "configtext.h"
#include "filereplace.h"
#include "modelhost.h"
#include "programstate.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>
#include <fstream>

namespace {

constexpr const char* kFolder = "skylathe";
constexpr const char* kFileName = "Skylathe.cfg";
constexpr const char* kMissing = "Could not load config file";
// A file written by the program is a few hundred bytes; nothing beyond this is read.
constexpr std::streamsize kLargestRead = 1 << 20;

} // namespace

std::string ConfigFilePath() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    return QDir(folder).filePath(QStringLiteral("%1/%2").arg(kFolder, kFileName)).toStdString();
}

void ReadConfig() {
    ProgramState& state = Program();
    ResetConfigValues(state);
    std::ifstream in(ConfigFilePath(), std::ios::binary);
    if (!in.is_open()) {
        ShowMessage(kMissing, MessageIcon::Information);
        return;
    }
    std::string text(static_cast<std::size_t>(kLargestRead), '\0');
    in.read(text.data(), kLargestRead);
    text.resize(static_cast<std::size_t>(std::max<std::streamsize>(in.gcount(), 0)));
    ReadConfigText(text, state);
}

void WriteConfig() {
    const std::string path = ConfigFilePath();
    QDir().mkpath(QFileInfo(QString::fromStdString(path)).absolutePath());
    std::string error;
    ReplaceFileContents(path, ConfigText(Program()), error);
}

// The desktop's association of model files, checked with the desktop's own tools under a home of
// the test's own.
#include "fileassociation.h"
#include "tempdir.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <gtest/gtest.h>

#include <fstream>

namespace {

// The tool's output without its line end; empty when it is missing or fails.
std::string ToolOutput(const QString& tool, const QStringList& arguments) {
    QProcess process;
    process.start(tool, arguments);
    if (!process.waitForFinished(30000) || process.exitCode() != 0)
        return "failed: " + process.readAllStandardError().toStdString();
    return process.readAllStandardOutput().trimmed().toStdString();
}

class EnvironmentValue {
public:
    EnvironmentValue(const char* name, const QByteArray& value)
        : name_(name), old_(qgetenv(name)), had_(qEnvironmentVariableIsSet(name)) {
        qputenv(name, value);
    }
    ~EnvironmentValue() {
        if (had_)
            qputenv(name_, old_);
        else
            qunsetenv(name_);
    }

private:
    const char* name_;
    QByteArray old_;
    bool had_;
};

} // namespace

TEST(FileAssociation, ModelFilesOpenWithThisProgramOnTheDesktop) {
    TempDir home;
    const QByteArray root = QByteArray::fromStdString(home.path().string());
    const EnvironmentValue homeValue("HOME", root);
    const EnvironmentValue data("XDG_DATA_HOME", root + "/data");
    const EnvironmentValue config("XDG_CONFIG_HOME", root + "/config");
    // The desktop's own file type lookup, which reads the user's type database.
    const EnvironmentValue desktop("XDG_CURRENT_DESKTOP", "GNOME");

    WriteFileAssociation();
    const QString entry = QString::fromUtf8(root) + "/data/applications/skylathe.desktop";
    const QDateTime written = QFileInfo(entry).lastModified();
    EXPECT_EQ(ToolOutput("desktop-file-validate", {entry}), "");
    std::ifstream text(entry.toStdString());
    const std::string contents((std::istreambuf_iterator<char>(text)), {});
    EXPECT_NE(contents.find("Exec=" +
                            DesktopCommand(QCoreApplication::applicationFilePath()).toStdString()),
              std::string::npos);

    std::ofstream(home.file("PLANEF.MOX")) << "model";
    std::ofstream(home.file("plane.moy")) << "model";
    EXPECT_EQ(ToolOutput("xdg-mime",
                         {"query", "filetype", QString::fromStdString(home.file("PLANEF.MOX"))}),
              "application/x-skylathe-mox");
    EXPECT_EQ(ToolOutput("xdg-mime",
                         {"query", "filetype", QString::fromStdString(home.file("plane.moy"))}),
              "application/x-skylathe-moy");
    EXPECT_EQ(ToolOutput("xdg-mime", {"query", "default", "application/x-skylathe-mox"}),
              "skylathe.desktop");

    // A second start finds everything in place and writes nothing.
    WriteFileAssociation();
    EXPECT_EQ(QFileInfo(entry).lastModified(), written);

    const std::pair<const char*, const char*> commands[] = {
        {"/usr/bin/skylathe", "/usr/bin/skylathe %f"},
        {"/opt/my apps/sky\"lathe", "\"/opt/my apps/sky\\\\\"lathe\" %f"},
        {"/opt/100%/skylathe", "\"/opt/100%%/skylathe\" %f"},
    };
    for (const auto& [program, command] : commands)
        EXPECT_EQ(DesktopCommand(program).toStdString(), command);
}

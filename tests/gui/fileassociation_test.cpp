// The desktop's association of model files, checked with the desktop's own tools in the data and
// configuration folders of the test run.
#include "fileassociation.h"
#include "tempdir.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QProcess>
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

} // namespace

TEST(FileAssociation, ModelFilesOpenWithThisProgramOnTheDesktop) {
    // The run's own data and configuration folders, and the desktop's own file type lookup,
    // which reads the user's type database.
    const QString data = qEnvironmentVariable("XDG_DATA_HOME");
    qputenv("XDG_CURRENT_DESKTOP", "GNOME");
    TempDir folder;

    WriteFileAssociation();
    const QString entry = data + "/applications/skylathe.desktop";
    const QDateTime written = QFileInfo(entry).lastModified();
    EXPECT_EQ(ToolOutput("desktop-file-validate", {entry}), "");
    std::ifstream text(entry.toStdString());
    const std::string contents((std::istreambuf_iterator<char>(text)), {});
    EXPECT_NE(contents.find("Exec=" +
                            DesktopCommand(QCoreApplication::applicationFilePath()).toStdString()),
              std::string::npos);

    for (const auto& [name, type] : {std::pair{"PLANEF.MOX", "application/x-skylathe-mox"},
                                     std::pair{"plane.moy", "application/x-skylathe-moy"}}) {
        std::ofstream(folder.file(name)) << "model";
        EXPECT_EQ(ToolOutput("xdg-mime",
                             {"query", "filetype", QString::fromStdString(folder.file(name))}),
                  type);
    }
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

#include "fileassociation.h"

#include "filereplace.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

namespace {

constexpr const char* kDesktopEntry = ":/desktop/skylathe.desktop";
constexpr const char* kTypes = ":/desktop/skylathe-mime.xml";
constexpr const char* kIcon = ":/images/skylathe.svg";
constexpr const char* kInstalledCommand = "Exec=skylathe %f";
constexpr const char* kEntryName = "skylathe.desktop";
constexpr const char* kModelTypes[] = {"application/x-skylathe-mox", "application/x-skylathe-moy"};
constexpr int kToolMilliseconds = 10000;

QByteArray Resource(const char* path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// Writes `contents` to `path` unless the file holds them already; true when it wrote.
bool Refresh(const QString& path, const QByteArray& contents) {
    if (contents.isEmpty())
        return false;
    QFile present(path);
    if (present.open(QIODevice::ReadOnly) && present.readAll() == contents)
        return false;
    QDir().mkpath(QFileInfo(path).absolutePath());
    std::string error;
    return ReplaceFileContents(path.toStdString(), contents.constData(),
                               static_cast<std::size_t>(contents.size()), error);
}

// Runs a desktop tool when the system has it; its result is not needed.
void RunTool(const QString& name, const QStringList& arguments) {
    const QString tool = QStandardPaths::findExecutable(name);
    if (tool.isEmpty())
        return;
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.setStandardOutputFile(QProcess::nullDevice());
    process.start(tool, arguments);
    if (process.waitForStarted(kToolMilliseconds) && !process.waitForFinished(kToolMilliseconds))
        process.kill();
}

bool PlainPathCharacter(QChar c) {
    return c.isLetterOrNumber() || QStringLiteral("/._+-").contains(c);
}

} // namespace

QString DesktopCommand(const QString& program) {
    QString path;
    bool plain = true;
    for (const QChar c : program) {
        plain = plain && c.isPrint() && c.unicode() < 128 && PlainPathCharacter(c);
        if (c == '"' || c == '`' || c == '$' || c == '\\')
            path += '\\';
        path += c;
    }
    path.replace('%', QStringLiteral("%%"));
    if (plain)
        return program + QStringLiteral(" %f");
    // Inside quotes a backslash escapes, and the entry's own text escapes each backslash again.
    path.replace('\\', QStringLiteral("\\\\"));
    return '"' + path + QStringLiteral("\" %f");
}

void WriteFileAssociation() {
    const QDir data(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation));
    QByteArray entry = Resource(kDesktopEntry);
    entry.replace(kInstalledCommand,
                  "Exec=" + DesktopCommand(QCoreApplication::applicationFilePath()).toUtf8());
    bool changed = Refresh(data.filePath(QStringLiteral("applications/") + kEntryName), entry);
    changed = Refresh(data.filePath("mime/packages/skylathe.xml"), Resource(kTypes)) || changed;
    changed = Refresh(data.filePath("icons/hicolor/scalable/apps/skylathe.svg"), Resource(kIcon)) ||
              changed;
    if (!changed)
        return;
    RunTool("update-mime-database", {data.filePath("mime")});
    RunTool("update-desktop-database", {data.filePath("applications")});
    QStringList setDefault{"default", kEntryName};
    for (const char* type : kModelTypes)
        setDefault << type;
    RunTool("xdg-mime", setDefault);
}

#include "skylathe.h"

#include "commandline.h"
#include "configfile.h"
#include "currentmodel.h"
#include "gltextureloader.h"
#include "glview.h"
#include "mainwindow.h"
#include "oglgraphics.h"
#include "qtmodelhost.h"
#include "viewsettings.h"

#include <QApplication>
#include <QEventLoop>

std::unique_ptr<frm_main> StartUp(const std::string& commandLine, QtModelHost* windowHost) {
    OGL().bRunning = false;
    ReplaceCurrentModel();
    // The clear colour of Initialise comes from the configuration.
    ReadConfig();
    View().ViewMode = kPerspectiveView;

    auto window = std::make_unique<frm_main>();
    if (windowHost != nullptr)
        windowHost->AttachWindow(window.get());
    window->Form_Load();
    // The view's GL surface is a native window, made when the main window is shown; its context
    // follows at once, so showing comes before Initialise.
    window->show();
    window->glView->CreateContext();
    OGL().bRunning = OGL().Initialise(*window->glView);
    if (!OGL().bRunning)
        return window;
    window->raise();
    window->activateWindow();
    // The model named on the command line is opened once the context stands, so that its
    // texture reaches GL.
    if (!commandLine.empty() && OGL().MakeCurrent())
        OpenModelFromCommandLine(commandLine);
    window->UpdateRecentMenus();
    // The first frame; the frame pacer asks for each later one when the picture changes.
    window->glView->update();
    return window;
}

void RunMainLoop(frm_main& window) {
    if (!OGL().bRunning)
        return;
    QEventLoop loop;
    QObject::connect(&window, &frm_main::Unloaded, &loop, &QEventLoop::quit);
    loop.exec();
}

void ShutDown(std::unique_ptr<frm_main> window) {
    ReleaseCurrentModel();
    OGL().CleanUp();
    if (window->isVisible())
        window->close();
    window.reset();
}

int Main(int argc, char** argv) {
    RequestPixelFormat();
    QApplication application(argc, argv);
    // Only the closing sequence ends the program, through bRunning.
    QApplication::setQuitOnLastWindowClosed(false);
    QtModelHost host;
    SetHost(&host);
    GLTextureLoader textures;
    SetTextureLoader(&textures);

    // The application has taken its own options out of the arguments by now.
    std::unique_ptr<frm_main> window = StartUp(CommandLine(argc, argv), &host);
    const bool contextStood = OGL().bRunning;
    RunMainLoop(*window);
    ShutDown(std::move(window));
    SetTextureLoader(nullptr);
    SetHost(nullptr);
    return contextStood ? 0 : 1;
}

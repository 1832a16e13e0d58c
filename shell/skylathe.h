// Module Skylathe: the program's start-up, its main loop and its end.
#pragma once

#include <memory>
#include <string>

class frm_main;
class QtModelHost;

// Brings the program up: the open model, the configuration, the main window, the GL context of
// its view, then the model named by `commandLine` (when not empty). bRunning tells whether the
// GL context stands.
// The window's changes of loads and saves go to `windowHost` when one is given.
std::unique_ptr<frm_main> StartUp(const std::string& commandLine,
                                  QtModelHost* windowHost = nullptr);
// The main loop: window events, with the view repainted whenever it changes, until the closing
// sequence clears bRunning. Returns at once when bRunning is false already.
void RunMainLoop(frm_main& window);
// Releases the open model, then the GL context, then the window (which still runs its closing
// sequence when the main loop never ran).
void ShutDown(std::unique_ptr<frm_main> window);

// The whole program. Returns 0, or 1 when no GL context could be made.
int Main(int argc, char** argv);

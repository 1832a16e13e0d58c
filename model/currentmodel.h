// The open model of the program, `CurrentModel`: replaced by a new object before each load and
// released at exit before the GL context goes.
#pragma once

#include "model.h"

// The open model. When none stands (before start-up or after the release at exit) a new, empty
// one is made, so a caller always gets a model with nothing loaded rather than none at all.
model& CurrentModel();
// Drops the open model and everything it holds and puts a new, empty one in its place.
void ReplaceCurrentModel();
// Drops the open model.
void ReleaseCurrentModel();

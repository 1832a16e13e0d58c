// The hook through which the Elements panel and the map fields redraw the texture window, which
// shows the selected piggyback's outline over the texture. Until a texture window sets a drawer,
// a redraw does nothing.
#pragma once

#include <functional>

class model;

using TextureMapDrawer = std::function<void(const model&)>;

// Sets the drawer; an empty one turns redrawing off.
void SetTextureMapDrawer(TextureMapDrawer drawer);
// Redraws the texture window from the selection of `current`, whether or not it is shown.
void DrawTextureMap(const model& current);

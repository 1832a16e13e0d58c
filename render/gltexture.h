// Turns PCX files into GL textures through the image stores: LoadGLTexture, and the uploads that
// wait for the GL context when a model is loaded before the view has one.
#pragma once

#include "imagestore.h"

#include <cstdint>
#include <string>

class model;

// Loads `texturename` into image store `ID` and a new GL texture whose name goes to `Texture`.
// A file that is not a usable picture leaves the store empty, so the texture is plain white; the
// reader's messages are shown. Returns true for slots 0 to 7, false for any other slot.
// When no GL context is current the picture waits, with a copy of its pixels, and `Texture`
// becomes 0: FlushPendingTextures uploads it later and gives the name to the project's view image
// field when `Texture` is one, else to the file of slot `ID`. A later load for the same place
// replaces a picture still waiting.
bool LoadGLTexture(const std::string& texturename, int32_t& Texture, int ID);

// Uploads the store's pixels as a new GL texture (rows bottom-up, linear filters, no mipmaps)
// and returns its name. A GL context must be current.
uint32_t UploadImageStore(const ImageStore& store);

// True when a GL context is current on this thread.
bool GLContextIsCurrent();

// True when a picture waits for a GL context.
bool HasPendingTextures();

// Uploads every waiting picture in the order they were loaded and gives each texture name to its
// place: a view image field of the project, or `m.Files[slot].TextureID`. A GL context must be
// current.
void FlushPendingTextures(model& m);

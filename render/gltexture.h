// Turns PCX files into GL textures through the image stores: LoadGLTexture, and the uploads that
// wait for the GL context when a model is loaded before the view has one.
#pragma once

#include "imagestore.h"

#include <cstdint>
#include <functional>
#include <string>

class model;

// Loads `texturename` into image store `ID` and a new GL texture whose name goes to `Texture`.
// A file that is not a usable picture leaves the store empty, so the texture is plain white; the
// reader's messages are shown. Returns true for slots 0 to 7, false for any other slot.
// When no GL context is current the picture waits in its store: `Texture` becomes 0 and
// FlushPendingTextures uploads it later.
bool LoadGLTexture(const std::string& texturename, int32_t& Texture, int ID);

// Uploads the store's pixels as a new GL texture (rows bottom-up, linear filters, no mipmaps)
// and returns its name. A GL context must be current.
uint32_t UploadImageStore(const ImageStore& store);

// True when a GL context is current on this thread.
bool GLContextIsCurrent();

// True when some store holds a picture that waits for a GL context.
bool HasPendingTextures();

// Uploads every waiting picture, in slot order, and hands each slot's new texture name to
// `deliver`. A GL context must be current.
void FlushPendingTextures(const std::function<void(int slot, int32_t name)>& deliver);
// The same, giving each name to the file record of its slot: `m.Files[slot].TextureID`.
void FlushPendingTextures(model& m);

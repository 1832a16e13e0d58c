#include "moxdraw.h"

// Nodes and elements are painted by the element painter; until it is in, a file paints nothing.
void DrawFile(const FileRecord&, const Node&) {}

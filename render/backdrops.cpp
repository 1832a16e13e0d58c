#include "backdrops.h"

// The backdrops come with the 3-view projects; until then the orthographic views show none.
void Draw_3Views() {}

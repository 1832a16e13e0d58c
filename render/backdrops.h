// Draw_3Views: the drawings of the open project behind the model in the orthographic views.
#pragma once

void Draw_3Views();

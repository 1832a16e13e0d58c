// The fill of the Elements panel: the selected piggyback of the current file, its kind, display
// code, corners with their nodes and map values, attributes and the element's plane.
#pragma once

#include "elementkindview.h"

#include <optional>

struct ElementsControls;

// Fills the panel from the piggyback m_currelem of the current file of the open model. The rows
// start at the scroll offset 0, unless `wait` is set, when they keep the scroll bar's offset. With
// nothing selected the panel keeps what it shows. A value the controls cannot show ends the fill
// where it stands with a message; the model is never changed. Returns what the panel shows of the
// piggyback's kind, or nothing when the fill ended early.
std::optional<KindView> FillElementsPanel(ElementsControls& controls);

// The panels of the tabs built so far, each mounted in its frame fra_edit(n), and the dispatch of
// a fill to the panel of a tab.
#pragma once

#include <cstdint>

class ElementsPanel;
class ModelInfoPanel;
class NodesPanel;
class PartsPanel;
class QWidget;

class EditPanels {
public:
    // Builds the Model Info, Parts, Elements and Nodes panels into the frames of tabs 1 to 4;
    // each frame owns its panel.
    EditPanels(QWidget& modelInfoFrame, QWidget& partsFrame, QWidget& elementsFrame,
               QWidget& nodesFrame);

    // Fills the panel of tab `tab`; a tab without a panel here shows nothing.
    void FillPanel(int32_t tab) const;

    ModelInfoPanel& modelInfo() const { return *modelInfo_; }
    PartsPanel& parts() const { return *parts_; }
    ElementsPanel& elements() const { return *elements_; }
    NodesPanel& nodes() const { return *nodes_; }

private:
    ModelInfoPanel* modelInfo_;
    PartsPanel* parts_;
    ElementsPanel* elements_;
    NodesPanel* nodes_;
};

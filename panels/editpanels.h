// The panels of the tabs built so far, each mounted in its frame fra_edit(n), and the dispatch of
// a fill to the panel of a tab.
#pragma once

#include <cstdint>

class ModelInfoPanel;
class NodesPanel;
class PartsPanel;
class QWidget;

class EditPanels {
public:
    // Builds the Model Info, Parts and Nodes panels into the frames of tabs 1, 2 and 4; each
    // frame owns its panel.
    EditPanels(QWidget& modelInfoFrame, QWidget& partsFrame, QWidget& nodesFrame);

    // Fills the panel of tab `tab`; a tab without a panel here shows nothing.
    void FillPanel(int32_t tab) const;

    ModelInfoPanel& modelInfo() const { return *modelInfo_; }
    PartsPanel& parts() const { return *parts_; }
    NodesPanel& nodes() const { return *nodes_; }

private:
    ModelInfoPanel* modelInfo_;
    PartsPanel* parts_;
    NodesPanel* nodes_;
};

// The panels of the tabs built so far, each mounted in its frame fra_edit(n), and the dispatch of
// a fill to the panel of a tab.
#pragma once

#include <cstdint>

class CentreMoverPanel;
class ElementsPanel;
class ModelInfoPanel;
class NodesPanel;
class NotepadPanel;
class PartsPanel;
class QWidget;
class ThreeViewPanel;

class EditPanels {
public:
    // Builds the seven panels into the frames of tabs 1 to 7; each frame owns its panel.
    EditPanels(QWidget& modelInfoFrame, QWidget& partsFrame, QWidget& elementsFrame,
               QWidget& nodesFrame, QWidget& centreMoverFrame, QWidget& notepadFrame,
               QWidget& threeViewFrame);

    // Fills the panel of tab `tab`; a tab without a panel here shows nothing.
    void FillPanel(int32_t tab) const;

    ModelInfoPanel& modelInfo() const { return *modelInfo_; }
    PartsPanel& parts() const { return *parts_; }
    ElementsPanel& elements() const { return *elements_; }
    NodesPanel& nodes() const { return *nodes_; }
    CentreMoverPanel& centreMover() const { return *centreMover_; }
    ThreeViewPanel& threeView() const { return *threeView_; }

private:
    ModelInfoPanel* modelInfo_;
    PartsPanel* parts_;
    ElementsPanel* elements_;
    NodesPanel* nodes_;
    CentreMoverPanel* centreMover_;
    NotepadPanel* notepad_;
    ThreeViewPanel* threeView_;
};

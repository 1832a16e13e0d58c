#include "editpanels.h"

#include "centremoverpanel.h"
#include "elementspanel.h"
#include "modelinfopanel.h"
#include "nodespanel.h"
#include "notepadpanel.h"
#include "partspanel.h"
#include "threeviewpanel.h"
#include "viewsettings.h"

EditPanels::EditPanels(QWidget& modelInfoFrame, QWidget& partsFrame, QWidget& elementsFrame,
                       QWidget& nodesFrame, QWidget& centreMoverFrame, QWidget& notepadFrame,
                       QWidget& threeViewFrame)
    : modelInfo_(new ModelInfoPanel(modelInfoFrame)), parts_(new PartsPanel(partsFrame)),
      elements_(new ElementsPanel(elementsFrame)), nodes_(new NodesPanel(nodesFrame)),
      centreMover_(new CentreMoverPanel(centreMoverFrame)),
      notepad_(new NotepadPanel(notepadFrame)), threeView_(new ThreeViewPanel(threeViewFrame)) {}

void EditPanels::FillPanel(int32_t tab) const {
    switch (tab) {
    case kModelInfoTab:
        modelInfo_->Fill();
        break;
    case kPartsTab:
        parts_->Fill();
        break;
    case kElementsTab:
        elements_->Fill();
        break;
    case kNodesTab:
        nodes_->Fill();
        break;
    case kNotepadTab:
        notepad_->Fill();
        break;
    case kThreeViewDataTab:
        threeView_->Fill();
        break;
    default:
        break;
    }
}

#include "editpanels.h"

#include "modelinfopanel.h"
#include "nodespanel.h"
#include "partspanel.h"
#include "viewsettings.h"

EditPanels::EditPanels(QWidget& modelInfoFrame, QWidget& partsFrame, QWidget& nodesFrame)
    : modelInfo_(new ModelInfoPanel(modelInfoFrame)), parts_(new PartsPanel(partsFrame)),
      nodes_(new NodesPanel(nodesFrame)) {}

void EditPanels::FillPanel(int32_t tab) const {
    switch (tab) {
    case kModelInfoTab:
        modelInfo_->Fill();
        break;
    case kPartsTab:
        parts_->Fill();
        break;
    case kNodesTab:
        nodes_->Fill();
        break;
    default:
        break;
    }
}

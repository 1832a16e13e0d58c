// Tab 4, "F4 - Nodes": one row of the node table of the current file, and the commands on the
// table as a whole.
#pragma once

#include <QObject>

#include <cstdint>

class QPushButton;
class QWidget;
class SpinWithBuddy;

class NodesPanel : public QObject {
    Q_OBJECT
public:
    // Builds the panel's controls into `frame`, which owns the panel.
    explicit NodesPanel(QWidget& frame);

    // The Nodes fill: node m_currnode of the current file; nothing while no node is selected.
    void Fill();

private:
    // The node that upd_4_node shows.
    int16_t ShownNode() const;
    void cmd_3_unused_Click();

    SpinWithBuddy* upd_4_node;
    SpinWithBuddy* upd_4_x;
    SpinWithBuddy* upd_4_y;
    SpinWithBuddy* upd_4_z;
    SpinWithBuddy* upd_4_b;
    QPushButton* cmd_4_add;
    QPushButton* cmd_4_zero;
    QPushButton* cmd_3_unused;
};

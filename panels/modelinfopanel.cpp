#include "modelinfopanel.h"

#include "currentmodel.h"
#include "familynames.h"
#include "formchecks.h"
#include "modelhost.h"
#include "panelaccess.h"
#include "panelrows.h"
#include "viewsettings.h"
#include "wholenumber.h"

#include <QCheckBox>
#include <QComboBox>
#include <QSpinBox>

namespace {

constexpr const char* kModelNotLoaded = "Model Not Loaded";
constexpr int kMainFile = 0;

QStringList Rows(const std::vector<std::string>& rows) {
    QStringList items;
    for (const std::string& row : rows)
        items << QString::fromStdString(row);
    return items;
}

// The texture name as the record holds it, up to a zero byte where the file had one.
QString TextureText(const TextureName& texture) {
    const auto end = std::find(texture.begin(), texture.end(), 0);
    return QString::fromLatin1(reinterpret_cast<const char*>(texture.data()),
                               static_cast<qsizetype>(end - texture.begin()));
}

} // namespace

ModelInfoPanel::ModelInfoPanel(QWidget& frame) : QObject(&frame), frame_(frame) {
    PanelRows rows(frame);
    txt_1_radius = &rows.AddText("Radius:", "txt_1_radius");
    txt_1_texture = &rows.AddText("Texture:", "txt_1_texture");
    txt_1_texture->setMaxLength(kTextureNameLength);
    txt_1_numparts = &rows.AddReadOnly("# Parts:", "txt_1_numparts");
    txt_1_numelems = &rows.AddReadOnly("# Elements:", "txt_1_numelems");
    txt_1_numnodes = &rows.AddReadOnly("# Nodes:", "txt_1_numnodes");
    cbo_1_mox = &rows.AddList("Current MOX:", "cbo_1_mox", Rows(InitialFamilyListRows()));
    chk_thismox = &rows.AddCheck("Only Show This MOX?", "chk_thismox");
    rows.Finish();

    connect(txt_1_radius, &EnterField::Committed, this, &ModelInfoPanel::txt_1_radius_KeyUp);
    connect(txt_1_texture, &EnterField::Committed, this, &ModelInfoPanel::txt_1_texture_KeyUp);
    connect(cbo_1_mox, &QComboBox::activated, this, &ModelInfoPanel::cbo_1_mox_Click);
    // The painter reads the tick on every frame.
    connect(chk_thismox, &QCheckBox::toggled, this, [](bool on) { View().chk_thismox = on; });
}

void ModelInfoPanel::Fill() {
    const FileRecord* record = ShownRecord();
    if (record == nullptr)
        return;
    txt_1_radius->setText(QString::number(record->Radius));
    txt_1_texture->setText(TextureText(record->Texture));
    txt_1_numparts->setText(QString::number(record->NumParts));
    txt_1_numelems->setText(QString::number(record->NumElements));
    txt_1_numnodes->setText(QString::number(record->NumNodes));

    // A file holds NumParts - 1 part records, numbered from 0.
    if (QSpinBox* parts = FindSpin(frame_, "upd_2_part")) {
        const bool single = record->NumParts == 1;
        parts->setEnabled(!single);
        if (!single)
            SetChooserTop(parts, record->NumParts - 2);
    }
    SetChooserTop(FindSpin(frame_, "upd_3_elem"), record->NumElements - 1);
    SetChooserTop(FindSpin(frame_, "upd_4_node"), record->NumNodes - 1);
}

void ModelInfoPanel::txt_1_radius_KeyUp() {
    const QString text = txt_1_radius->text();
    if (text.isEmpty() || !MainForm::AlphaNumeric(text, false, true))
        return;
    const std::optional<int64_t> number = LeadingNumber(text.toStdString());
    if (!number || CurrentModel().UpdateInfo(kFieldRadius, std::to_string(*number), -1, -1) !=
                       InfoWrite::Written)
        ShowRadius();
}

void ModelInfoPanel::ShowRadius() {
    if (const std::optional<std::string> stored = CurrentModel().InfoText(kFieldRadius, -1, -1))
        txt_1_radius->setText(QString::fromStdString(*stored));
}

void ModelInfoPanel::txt_1_texture_KeyUp() {
    const QString text = txt_1_texture->text();
    if (text.isEmpty())
        return;
    CurrentModel().UpdateInfo(kFieldTexture, text.toLatin1().toStdString(), -1, -1);
}

void ModelInfoPanel::cbo_1_mox_Click(int index) {
    model& current = CurrentModel();
    if (current.M_Type != kNothingLoaded && current.CheckMOX(static_cast<int16_t>(index))) {
        current.m_currmox = static_cast<int16_t>(index);
        current.m_currelem = 0;
        current.m_currnode = 0;
        current.WriteInfo(kModelInfoTab);
        return;
    }
    ShowMessage(kModelNotLoaded);
    current.m_currmox = kMainFile;
    cbo_1_mox->setCurrentIndex(kMainFile);
}

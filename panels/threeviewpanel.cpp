#include "threeviewpanel.h"

#include "currentmodel.h"
#include "dimensiontext.h"
#include "enterfield.h"
#include "panelrows.h"

#include <QComboBox>
#include <QFileDialog>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace {

enum Dimensions { kSpan, kLength, kHeight };
enum Minimums { kMinX, kMinY, kMaxZ };
enum Views { kLeftView, kTopView, kFrontView };

// GetSpan, GetLength and GetHeight of the whole family: the smallest value, the largest, the
// extent.
constexpr bool kWholeFamily = true;
constexpr int32_t kSmallest = 0;
constexpr int32_t kLargest = 1;
constexpr int32_t kExtent = 2;

const QColor kUnitsGround(224, 224, 224);
constexpr const char* kWidestNumber = "-32768";
constexpr int kFieldPadding = 12;
constexpr const char* kProjectEnding = ".3VW";
constexpr const char* kAddedEnding = ".3vw";

const ThreeViewPanel::FileQuestion kSelectImage{false, "Select Background Image",
                                                "PCX Images (*.pcx)"};
const ThreeViewPanel::FileQuestion kCreateProject{true, "Create Project",
                                                  "Skylathe Projects (*.3vw)"};

QLineEdit* UnitsField(const QString& name, QWidget& frame) {
    auto* field = new QLineEdit(&frame);
    field->setObjectName(name);
    field->setReadOnly(true);
    QPalette colours = field->palette();
    colours.setColor(QPalette::Base, kUnitsGround);
    field->setPalette(colours);
    return field;
}

QPushButton* Button(const char* caption, const char* name, QWidget& frame) {
    auto* button = new QPushButton(caption, &frame);
    button->setObjectName(name);
    return button;
}

} // namespace

ThreeViewPanel::ThreeViewPanel(QWidget& frame) : QObject(&frame) {
    AskForFile = [&frame](const FileQuestion& question) {
        return question.saving ? QFileDialog::getSaveFileName(&frame, question.title, QString(),
                                                              question.filter)
                               : QFileDialog::getOpenFileName(&frame, question.title, QString(),
                                                              question.filter);
    };
    PanelRows rows(frame);
    QHBoxLayout* line = nullptr;
    const auto addDimension = [&](Dimension& dimension, const char* caption, const char* name,
                                  int16_t ProjectRecord::*stored) {
        line = &rows.AddRow(caption);
        dimension.stored = stored;
        dimension.units = UnitsField(QString("txt_7_%1").arg(name), frame);
        dimension.metres =
            new EnterField(QString("txt_7_%1_m").arg(name).toUtf8().constData(), &frame);
        dimension.feetInches = new QLineEdit(&frame);
        dimension.feetInches->setObjectName(QString("txt_7_%1_i").arg(name));
        MakeReadOnly(*dimension.feetInches);
        for (QLineEdit* field :
             {dimension.units, static_cast<QLineEdit*>(dimension.metres), dimension.feetInches})
            line->addWidget(field);
        connect(dimension.units, &QLineEdit::textChanged, this,
                [this, &dimension] { Units_Change(dimension); });
        connect(dimension.metres, &EnterField::Committed, this,
                [this, &dimension] { Metres_KeyUp(dimension); });
    };
    addDimension(dimensions_[kSpan], "Wingspan:", "span", &ProjectRecord::Span);
    addDimension(dimensions_[kLength], "Length:", "length", &ProjectRecord::Length);
    addDimension(dimensions_[kHeight], "Height:", "height", &ProjectRecord::Height);
    rows.AddNote("(Note: Height Include Gear)");
    connect(&rows.AddButton("Get Dimensions from Model", "cmd_7_frommodel"), &QPushButton::clicked,
            this, &ThreeViewPanel::cmd_7_frommodel_Click);

    // The three corner values, with their one button beside them.
    auto* grid = new QGridLayout;
    rows.AddRow("").addLayout(grid);
    const std::array<std::pair<const char*, const char*>, 3> corner{
        {{"Min. X:", "txt_7_minx"}, {"Min. Y:", "txt_7_miny"}, {"Max Z:", "txt_7_maxz"}}};
    const std::array<int16_t ProjectRecord::*, 3> cornerFields{
        &ProjectRecord::TopLeftX, &ProjectRecord::TopLeftY, &ProjectRecord::TopLeftZ};
    for (int row = 0; row < 3; ++row) {
        Minimum& minimum = minimums_[row];
        minimum.stored = cornerFields[row];
        minimum.field = new EnterField(corner[row].second, &frame);
        grid->addWidget(new QLabel(corner[row].first, &frame), 2 * row, 0);
        grid->addWidget(minimum.field, 2 * row + 1, 0);
        connect(minimum.field, &QLineEdit::textChanged, this, [&minimum](const QString& text) {
            Program().ProjectData.*minimum.stored = Whole16(text.toStdString());
        });
    }
    // In the narrow pane each caption stands over its field, and the fields keep room for any
    // 16-bit number; the button takes the rest of the width.
    const int numberWidth = frame.fontMetrics().horizontalAdvance(kWidestNumber) + kFieldPadding;
    for (const Minimum& minimum : minimums_)
        minimum.field->setFixedWidth(numberWidth);
    QPushButton* fromModel = Button("Get From Model", "cmd_7_minimums", frame);
    fromModel->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Expanding);
    grid->addWidget(fromModel, 0, 1, 2 * static_cast<int>(minimums_.size()), 1);
    connect(fromModel, &QPushButton::clicked, this, &ThreeViewPanel::cmd_7_minimums_Click);

    cbo_7_view = &rows.AddList("", "cbo_7_view", {"Left View", "Top View", "Front View"});
    cbo_7_view->setCurrentIndex(-1);
    connect(cbo_7_view, &QComboBox::currentIndexChanged, this, &ThreeViewPanel::cbo_7_view_Click);
    line = &rows.AddRow("");
    txt_7_viewname = new QLineEdit(&frame);
    txt_7_viewname->setObjectName("txt_7_viewname");
    MakeReadOnly(*txt_7_viewname);
    line->addWidget(txt_7_viewname, 1);
    QPushButton* select = Button("...", "cmd_7_select", frame);
    select->setFixedWidth(frame.fontMetrics().horizontalAdvance("...") + kFieldPadding);
    line->addWidget(select);
    connect(txt_7_viewname, &QLineEdit::textChanged, this, &ThreeViewPanel::txt_7_viewname_Change);
    connect(select, &QPushButton::clicked, this, &ThreeViewPanel::cmd_7_select_Click);
    connect(&rows.AddButton("Create Project...", "cmd_7_createproject"), &QPushButton::clicked,
            this, &ThreeViewPanel::cmd_7_createproject_Click);
    rows.Finish();
}

void ThreeViewPanel::Fill() {
    const ProjectRecord& project = Program().ProjectData;
    for (const Dimension& dimension : dimensions_)
        ShowUnits(dimension, project.*dimension.stored);
    for (const Minimum& minimum : minimums_)
        minimum.field->setText(QString::number(project.*minimum.stored));
    if (cbo_7_view->currentIndex() == kLeftView)
        cbo_7_view_Click(kLeftView);
    else
        cbo_7_view->setCurrentIndex(kLeftView);
}

void ThreeViewPanel::Units_Change(const Dimension& dimension) {
    const std::string text = dimension.units->text().toStdString();
    const int64_t units = RoundedWhole(LeadingDecimal(text));
    dimension.metres->setText(QString::fromStdString(MetricText(units)));
    dimension.feetInches->setText(QString::fromStdString(FeetInchesText(units)));
    Program().ProjectData.*dimension.stored = Hold16(units);
}

// Metres beyond what 16 bits of model units hold give the nearest bound, which the fields show.
void ThreeViewPanel::Metres_KeyUp(const Dimension& dimension) {
    ShowUnits(dimension, Hold16(UnitsFromMetres(dimension.metres->text().toStdString())));
}

void ThreeViewPanel::ShowUnits(const Dimension& dimension, int32_t value) {
    const QString text = QString::number(value);
    if (dimension.units->text() == text)
        Units_Change(dimension);
    else
        dimension.units->setText(text);
}

void ThreeViewPanel::cmd_7_frommodel_Click() {
    const model& current = CurrentModel();
    ShowUnits(dimensions_[kSpan], current.GetSpan(kWholeFamily, kExtent));
    ShowUnits(dimensions_[kLength], current.GetLength(kWholeFamily, kExtent));
    ShowUnits(dimensions_[kHeight], current.GetHeight(kWholeFamily, kExtent));
}

void ThreeViewPanel::cmd_7_minimums_Click() {
    const model& current = CurrentModel();
    minimums_[kMinX].field->setText(QString::number(current.GetLength(kWholeFamily, kSmallest)));
    minimums_[kMinY].field->setText(QString::number(current.GetSpan(kWholeFamily, kSmallest)));
    minimums_[kMaxZ].field->setText(QString::number(current.GetHeight(kWholeFamily, kLargest)));
}

std::string* ThreeViewPanel::ViewFile(int index) {
    ProjectRecord& project = Program().ProjectData;
    switch (index) {
    case kLeftView:
        return &project.Left;
    case kTopView:
        return &project.Top;
    case kFrontView:
        return &project.Front;
    default:
        return nullptr;
    }
}

void ThreeViewPanel::cbo_7_view_Click(int index) {
    if (const std::string* file = ViewFile(index))
        txt_7_viewname->setText(QString::fromStdString(*file));
}

void ThreeViewPanel::txt_7_viewname_Change() {
    if (std::string* file = ViewFile(cbo_7_view->currentIndex()))
        *file = txt_7_viewname->text().toStdString();
}

void ThreeViewPanel::cmd_7_select_Click() {
    const QString name = AskForFile(kSelectImage);
    if (!name.isEmpty())
        txt_7_viewname->setText(name);
}

void ThreeViewPanel::cmd_7_createproject_Click() {
    QString name = AskForFile(kCreateProject);
    if (name.isEmpty())
        return;
    if (!name.endsWith(kProjectEnding, Qt::CaseInsensitive))
        name += kAddedEnding;
    Program().ProjectData.ProjectFile = name.toStdString();
    CurrentModel().SaveProject();
}

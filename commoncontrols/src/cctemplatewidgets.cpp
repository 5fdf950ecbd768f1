// The template widgets: small labelled editors for the parameters of application commands.
#include "nui/CommonControls/CcColorButton.hpp"
#include "nui/CommonControls/Template/CcAngle.hpp"
#include "nui/CommonControls/Template/CcCmdButton.hpp"
#include "nui/CommonControls/Template/CcColor.hpp"
#include "nui/CommonControls/Template/CcDistance.hpp"
#include "nui/CommonControls/Template/CcEntity.hpp"
#include "nui/CommonControls/Template/CcEntityList.hpp"
#include "nui/CommonControls/Template/CcNumber.hpp"
#include "nui/CommonControls/Template/CcPinEntity.hpp"
#include "nui/CommonControls/Template/CcPinEntityList.hpp"
#include "nui/CommonControls/Template/CcPoint.hpp"
#include "nui/CommonControls/Template/CcSlider.hpp"
#include "nui/CommonControls/Template/CcString.hpp"
#include "nui/CommonControls/Template/CcWindow.hpp"
#include "nui/CommonControls/Template/ColorTransfer.hpp"

#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QSlider>
#include <QSpinBox>
#include <QToolButton>
#include <QVBoxLayout>
#include <QtMath>

namespace VoCc {

namespace {

// A small dial pointing in the direction of an angle (0 degrees to the right,
// counter-clockwise).
class AngleDial : public QWidget
{
public:
    explicit AngleDial(QDoubleSpinBox *source) : m_source(source) { setFixedSize(22, 22); }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const QRectF circle = QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5);
        painter.setPen(palette().color(QPalette::Mid));
        painter.setBrush(palette().base());
        painter.drawEllipse(circle);
        const double radians = qDegreesToRadians(m_source->value());
        const QPointF centre = circle.center();
        const QPointF tip =
                centre + QPointF(std::cos(radians), -std::sin(radians)) * (circle.width() / 2 - 1);
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
        painter.drawLine(centre, tip);
    }

private:
    QDoubleSpinBox *m_source;
};

QToolButton *makePickButton(QWidget *parent)
{
    auto *button = new QToolButton(parent);
    button->setText(QStringLiteral("..."));
    button->setToolTip(TemplateField::tr("Pick"));
    return button;
}

QToolButton *makePinButton(QWidget *parent)
{
    auto *button = new QToolButton(parent);
    button->setCheckable(true);
    button->setText(TemplateField::tr("Pin"));
    button->setToolTip(TemplateField::tr("Keep the picked entity"));
    return button;
}

} // namespace

Angle::Angle(QWidget *parent) : TemplateField(parent), m_spinBox(new QDoubleSpinBox)
{
    m_spinBox->setRange(-360.0, 360.0);
    m_spinBox->setDecimals(2);
    m_spinBox->setSuffix(QStringLiteral("\u00B0"));
    m_dial = new AngleDial(m_spinBox);
    addEditor(m_spinBox);
    addEditor(m_dial, 0);
    connect(m_spinBox, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
            [this](double degrees) {
                m_dial->update();
                emit valueChanged(degrees);
            });
}

double Angle::value() const { return m_spinBox->value(); }

void Angle::setValue(double degrees) { m_spinBox->setValue(degrees); }

QDoubleSpinBox *Angle::spinBox() const { return m_spinBox; }

CmdButton::CmdButton(QWidget *parent) : QPushButton(parent)
{
    connect(this, &QPushButton::clicked, this, [this] {
        if (!m_command.isEmpty())
            emit commandTriggered(m_command);
    });
}

QString CmdButton::command() const { return m_command; }

void CmdButton::setCommand(const QString &command) { m_command = command; }

Color::Color(QWidget *parent) : TemplateField(parent), m_button(new ColorButton)
{
    addEditor(m_button, 0);
    rowLayout()->addStretch(1);
    connect(m_button, &ColorButton::colorChanged, this, &Color::colorChanged);
}

QColor Color::color() const { return m_button->color(); }

void Color::setColor(const QColor &color) { m_button->setColor(color); }

ColorButton *Color::colorButton() const { return m_button; }

ColorTransfer::ColorTransfer(QWidget *parent)
    : TemplateField(parent), m_from(new ColorButton), m_to(new ColorButton)
{
    auto *arrow = new QLabel(QStringLiteral("\u2192"));
    arrow->setAlignment(Qt::AlignCenter);
    addEditor(m_from, 0);
    addEditor(arrow, 0);
    addEditor(m_to, 0);
    rowLayout()->addStretch(1);
    m_to->setColor(Qt::white);
    connect(m_from, &ColorButton::colorChanged, this, &ColorTransfer::colorsChanged);
    connect(m_to, &ColorButton::colorChanged, this, &ColorTransfer::colorsChanged);
}

QColor ColorTransfer::fromColor() const { return m_from->color(); }

void ColorTransfer::setFromColor(const QColor &color) { m_from->setColor(color); }

QColor ColorTransfer::toColor() const { return m_to->color(); }

void ColorTransfer::setToColor(const QColor &color) { m_to->setColor(color); }

Distance::Distance(QWidget *parent) : TemplateField(parent), m_spinBox(new QDoubleSpinBox)
{
    m_spinBox->setRange(-1e9, 1e9);
    m_spinBox->setDecimals(3);
    addEditor(m_spinBox);
    setUnit(QStringLiteral("mm"));
    connect(m_spinBox, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
            &Distance::valueChanged);
}

double Distance::value() const { return m_spinBox->value(); }

void Distance::setValue(double value) { m_spinBox->setValue(value); }

QString Distance::unit() const { return m_unit; }

void Distance::setUnit(const QString &unit)
{
    m_unit = unit;
    m_spinBox->setSuffix(unit.isEmpty() ? QString() : QLatin1Char(' ') + unit);
}

QDoubleSpinBox *Distance::spinBox() const { return m_spinBox; }

Entity::Entity(QWidget *parent)
    : TemplateField(parent), m_nameEdit(new QLineEdit), m_pickButton(makePickButton(this))
{
    m_nameEdit->setReadOnly(true);
    m_nameEdit->setPlaceholderText(tr("Pick an entity"));
    addEditor(m_nameEdit);
    addEditor(m_pickButton, 0);
    connect(m_pickButton, &QToolButton::clicked, this, &Entity::pickRequested);
}

QString Entity::entityName() const { return m_nameEdit->text(); }

void Entity::setEntityName(const QString &name) { m_nameEdit->setText(name); }

QToolButton *Entity::pickButton() const { return m_pickButton; }

EntityList::EntityList(QWidget *parent)
    : TemplateField(parent),
      m_list(new QListWidget),
      m_pickButton(makePickButton(this)),
      m_removeButton(new QToolButton(this))
{
    m_removeButton->setText(QStringLiteral("\u2212"));
    m_removeButton->setToolTip(tr("Remove"));
    m_list->setMaximumHeight(80);
    auto *buttons = new QWidget;
    auto *buttonLayout = new QVBoxLayout(buttons);
    buttonLayout->setContentsMargins(0, 0, 0, 0);
    buttonLayout->addWidget(m_pickButton);
    buttonLayout->addWidget(m_removeButton);
    buttonLayout->addStretch(1);
    addEditor(m_list);
    addEditor(buttons, 0);
    connect(m_pickButton, &QToolButton::clicked, this, &EntityList::pickRequested);
    connect(m_removeButton, &QToolButton::clicked, this, &EntityList::removeHighlighted);
}

QStringList EntityList::entityNames() const
{
    QStringList names;
    for (int i = 0; i < m_list->count(); ++i)
        names.append(m_list->item(i)->text());
    return names;
}

void EntityList::setEntityNames(const QStringList &names)
{
    m_list->clear();
    m_list->addItems(names);
}

QListWidget *EntityList::listWidget() const { return m_list; }

void EntityList::removeHighlighted() { delete m_list->currentItem(); }

PinEntity::PinEntity(QWidget *parent) : Entity(parent), m_pinButton(makePinButton(this))
{
    addEditor(m_pinButton, 0);
}

bool PinEntity::isPinned() const { return m_pinButton->isChecked(); }

void PinEntity::setPinned(bool pinned) { m_pinButton->setChecked(pinned); }

PinEntityList::PinEntityList(QWidget *parent) : EntityList(parent), m_pinButton(makePinButton(this))
{
    addEditor(m_pinButton, 0);
}

bool PinEntityList::isPinned() const { return m_pinButton->isChecked(); }

void PinEntityList::setPinned(bool pinned) { m_pinButton->setChecked(pinned); }

Number::Number(QWidget *parent) : TemplateField(parent), m_spinBox(new QSpinBox)
{
    m_spinBox->setRange(-1000000, 1000000);
    addEditor(m_spinBox);
    connect(m_spinBox, QOverload<int>::of(&QSpinBox::valueChanged), this, &Number::valueChanged);
}

int Number::value() const { return m_spinBox->value(); }

void Number::setValue(int value) { m_spinBox->setValue(value); }

int Number::minimum() const { return m_spinBox->minimum(); }

void Number::setMinimum(int minimum) { m_spinBox->setMinimum(minimum); }

int Number::maximum() const { return m_spinBox->maximum(); }

void Number::setMaximum(int maximum) { m_spinBox->setMaximum(maximum); }

QSpinBox *Number::spinBox() const { return m_spinBox; }

Point::Point(QWidget *parent) : TemplateField(parent)
{
    const QString axes[] = {QStringLiteral("X"), QStringLiteral("Y"), QStringLiteral("Z")};
    for (int axis = 0; axis < 3; ++axis) {
        auto *spinBox = new QDoubleSpinBox;
        spinBox->setRange(-1e9, 1e9);
        spinBox->setDecimals(3);
        spinBox->setPrefix(axes[axis] + QLatin1Char(' '));
        addEditor(spinBox);
        connect(spinBox, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
                &Point::pointChanged);
        m_coordinates[axis] = spinBox;
    }
}

double Point::xCoordinate() const { return m_coordinates[0]->value(); }

void Point::setXCoordinate(double value) { m_coordinates[0]->setValue(value); }

double Point::yCoordinate() const { return m_coordinates[1]->value(); }

void Point::setYCoordinate(double value) { m_coordinates[1]->setValue(value); }

double Point::zCoordinate() const { return m_coordinates[2]->value(); }

void Point::setZCoordinate(double value) { m_coordinates[2]->setValue(value); }

Slider::Slider(QWidget *parent)
    : TemplateField(parent), m_slider(new QSlider(Qt::Horizontal)), m_valueLabel(new QLabel)
{
    m_slider->setRange(0, 100);
    m_valueLabel->setMinimumWidth(
            m_valueLabel->fontMetrics().horizontalAdvance(QStringLiteral("-0000")));
    m_valueLabel->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_valueLabel->setNum(0);
    addEditor(m_slider);
    addEditor(m_valueLabel, 0);
    connect(m_slider, &QSlider::valueChanged, this, [this](int value) {
        m_valueLabel->setNum(value);
        emit valueChanged(value);
    });
}

int Slider::value() const { return m_slider->value(); }

void Slider::setValue(int value) { m_slider->setValue(value); }

int Slider::minimum() const { return m_slider->minimum(); }

void Slider::setMinimum(int minimum) { m_slider->setMinimum(minimum); }

int Slider::maximum() const { return m_slider->maximum(); }

void Slider::setMaximum(int maximum) { m_slider->setMaximum(maximum); }

QSlider *Slider::slider() const { return m_slider; }

String::String(QWidget *parent) : TemplateField(parent), m_lineEdit(new QLineEdit)
{
    addEditor(m_lineEdit);
    connect(m_lineEdit, &QLineEdit::textChanged, this, &String::textChanged);
}

QString String::text() const { return m_lineEdit->text(); }

void String::setText(const QString &text) { m_lineEdit->setText(text); }

QLineEdit *String::lineEdit() const { return m_lineEdit; }

Window::Window(QWidget *parent)
    : TemplateField(parent), m_nameEdit(new QLineEdit), m_pickButton(makePickButton(this))
{
    m_nameEdit->setReadOnly(true);
    m_nameEdit->setPlaceholderText(tr("Pick a window"));
    addEditor(m_nameEdit);
    addEditor(m_pickButton, 0);
    connect(m_pickButton, &QToolButton::clicked, this, &Window::pickRequested);
}

QString Window::windowName() const { return m_nameEdit->text(); }

void Window::setWindowName(const QString &name) { m_nameEdit->setText(name); }

} // namespace VoCc

#pragma once

#include <QLabel>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

class ProbeWidget : public QLabel
{
    Q_OBJECT
public:
    explicit ProbeWidget(QWidget *parent = nullptr) : QLabel(QStringLiteral("probe"), parent) { }
};

// The smallest Designer plug-in: one widget class, "ProbeWidget". The test suite loads it to
// check that its Designer set-up sees exactly the modules it is given.
class ProbePlugin : public QObject, public QDesignerCustomWidgetInterface
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QDesignerCustomWidgetInterface_iid)
    Q_INTERFACES(QDesignerCustomWidgetInterface)
public:
    using QObject::QObject;
    QString name() const override { return QStringLiteral("ProbeWidget"); }
    QString group() const override { return QStringLiteral("Probe"); }
    QString toolTip() const override { return QString(); }
    QString whatsThis() const override { return QString(); }
    QString includeFile() const override { return QStringLiteral("probewidget.h"); }
    QIcon icon() const override { return QIcon(); }
    bool isContainer() const override { return false; }
    QWidget *createWidget(QWidget *parent) override { return new ProbeWidget(parent); }
    bool isInitialized() const override { return m_initialized; }
    void initialize(QDesignerFormEditorInterface *) override { m_initialized = true; }
    QString domXml() const override
    {
        return QStringLiteral("<widget class=\"ProbeWidget\" name=\"probe\"/>\n");
    }

private:
    bool m_initialized = false;
};

// A Designer module of a broken widget library, for the form checker's tests: a form can make
// its widget hang or crash the process that loads it, or lose a property's value.
#include <QDesignerCustomWidgetCollectionInterface>
#include <QDesignerCustomWidgetInterface>
#include <QThread>
#include <QWidget>
#include <QtPlugin>

#include <cstdlib>

namespace VoCc {

class TestFragile : public QWidget
{
    Q_OBJECT
    // "hang" never returns, "crash" ends the process.
    Q_PROPERTY(QString mode READ mode WRITE setMode)
    // Its setter keeps nothing, so what Designer saves lacks the form's value.
    Q_PROPERTY(QString secret READ secret WRITE setSecret)

public:
    using QWidget::QWidget;
    QString mode() const { return m_mode; }
    void setMode(const QString &mode)
    {
        m_mode = mode;
        if (mode == QLatin1String("crash"))
            std::abort();
        while (mode == QLatin1String("hang"))
            QThread::sleep(1);
    }
    QString secret() const { return QString(); }
    void setSecret(const QString &) { }

private:
    QString m_mode;
};

} // namespace VoCc

class FragilePlugin : public QDesignerCustomWidgetInterface
{
public:
    QString name() const override { return QStringLiteral("VoCc::TestFragile"); }
    QString group() const override { return QStringLiteral("Test"); }
    QString toolTip() const override { return QString(); }
    QString whatsThis() const override { return QString(); }
    QString includeFile() const override { return QStringLiteral("testfragile.h"); }
    QIcon icon() const override { return QIcon(); }
    bool isContainer() const override { return false; }
    QWidget *createWidget(QWidget *parent) override { return new VoCc::TestFragile(parent); }
};

class FragileWidgets : public QObject, public QDesignerCustomWidgetCollectionInterface
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.qt-project.Qt.QDesignerCustomWidgetCollectionInterface")
    Q_INTERFACES(QDesignerCustomWidgetCollectionInterface)

public:
    // CC_FRAGILE_START_SECONDS makes Designer's start slow, as a heavy plug-in does.
    FragileWidgets() { QThread::sleep(qEnvironmentVariableIntValue("CC_FRAGILE_START_SECONDS")); }
    QList<QDesignerCustomWidgetInterface *> customWidgets() const override { return {&m_plugin}; }

private:
    mutable FragilePlugin m_plugin;
};

#include "fragilewidgets.moc"

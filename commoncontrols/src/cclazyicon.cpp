#include "cclazyicon.h"

#include <QDataStream>
#include <QIODevice>
#include <QIconEngine>

namespace VoCc {

namespace {

// Hands every request on to the pixmap icon it makes on first use, so that sizes, modes
// (disabled, selected) and painting are those of an ordinary pixmap icon.
class LazyPixmapIconEngine : public QIconEngine
{
public:
    explicit LazyPixmapIconEngine(std::function<QPixmap()> draw) : m_draw(std::move(draw)) { }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        icon().paint(painter, rect, Qt::AlignCenter, mode, state);
    }

    QSize actualSize(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        return icon().actualSize(size, mode, state);
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        return icon().pixmap(size, mode, state);
    }

    void addPixmap(const QPixmap &pixmap, QIcon::Mode mode, QIcon::State state) override
    {
        icon().addPixmap(pixmap, mode, state);
    }

    void addFile(const QString &fileName, const QSize &size, QIcon::Mode mode,
                 QIcon::State state) override
    {
        icon().addFile(fileName, size, mode, state);
    }

#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    // Qt 6 asks an engine's sizes and nullness through virtual functions of their own.
    QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State state) override
    {
        return icon().availableSizes(mode, state);
    }

    // Answered without drawing: combo boxes ask every entry while sizing themselves.
    bool isNull() override { return false; }
#else
    QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State state) const override
    {
        return icon().availableSizes(mode, state);
    }
#endif

    // Streamed, the icon is the pixmap icon it stands for, and reads back as one.
    QString key() const override { return QStringLiteral("QPixmapIconEngine"); }

    bool write(QDataStream &out) const override
    {
        QByteArray data;
        QDataStream stream(&data, QIODevice::WriteOnly);
        stream.setVersion(out.version());
        stream << icon();
        QDataStream reader(data);
        reader.setVersion(out.version());
        QString engineKey;
        reader >> engineKey; // the pixmap engine's own data follows its key
        const int offset = int(reader.device()->pos());
        return out.writeRawData(data.constData() + offset, data.size() - offset)
                == data.size() - offset;
    }

    QIconEngine *clone() const override
    {
        auto *copy = new LazyPixmapIconEngine(m_draw);
        copy->m_icon = m_icon;
        return copy;
    }

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    // Qt 5 asks them through the engine's hook.
    void virtual_hook(int id, void *data) override
    {
        switch (id) {
        case AvailableSizesHook: {
            auto *argument = static_cast<AvailableSizesArgument *>(data);
            argument->sizes = icon().availableSizes(argument->mode, argument->state);
            return;
        }
        case IsNullHook:
            // Answered without drawing: combo boxes ask every entry while sizing themselves.
            *static_cast<bool *>(data) = false;
            return;
        default:
            QIconEngine::virtual_hook(id, data);
        }
    }
#endif

private:
    QIcon &icon() const
    {
        if (m_icon.isNull())
            m_icon = QIcon(m_draw());
        return m_icon;
    }

    std::function<QPixmap()> m_draw;
    mutable QIcon m_icon;
};

} // namespace

QIcon lazyPixmapIcon(std::function<QPixmap()> draw)
{
    return QIcon(new LazyPixmapIconEngine(std::move(draw)));
}

} // namespace VoCc

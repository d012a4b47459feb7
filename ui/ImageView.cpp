#include "ImageView.h"

#include "Surface.h"

#include <QDir>
#include <QHash>
#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>

#include <memory>

namespace qf::ui {

namespace {

QString assetPath(const QString& name) { return QStringLiteral(":/images/%1.svg").arg(name); }

// Each picture is read and parsed once: its size and every drawing of it come from one
// renderer. Pictures are drawn on the window's thread only.
QSvgRenderer& rendererFor(const QString& name)
{
    static QHash<QString, std::shared_ptr<QSvgRenderer>> renderers;
    std::shared_ptr<QSvgRenderer>& renderer = renderers[name];
    if (!renderer)
        renderer = std::make_shared<QSvgRenderer>(assetPath(name));
    return *renderer;
}

QSizeF naturalSize(const QString& name)
{
    const QSvgRenderer& svg = rendererFor(name);
    const QSizeF size = svg.isValid() ? svg.viewBoxF().size() : QSizeF();
    return size.isEmpty() ? QSizeF(1, 1) : size;
}

} // namespace

ImageView::ImageView(const QString& assetName, qreal height, QWidget* parent) : QWidget(parent), m_asset(assetName)
{
    const QSizeF natural = naturalSize(assetName);
    m_size = QSize(qRound(height * natural.width() / natural.height()), qRound(height));
    setFixedSize(m_size);
}

QStringList ImageView::assetNames()
{
    QStringList names;
    for (const QString& file : QDir(QStringLiteral(":/images")).entryList({QStringLiteral("*.svg")}, QDir::Files))
        names << file.chopped(4);
    return names;
}

bool ImageView::assetExists(const QString& assetName) { return QSvgRenderer(assetPath(assetName)).isValid(); }

void ImageView::setCornerRadius(qreal radius)
{
    m_cornerRadius = radius;
    update();
}

void ImageView::setFixedImageSize(QSize size)
{
    m_size = size;
    setFixedSize(size);
    update();
}

QPixmap ImageView::renderedPixmap(qreal dpr) const
{
    const QString key = QStringLiteral("qf-image:%1:%2x%3:%4:%5")
                            .arg(m_asset)
                            .arg(m_size.width())
                            .arg(m_size.height())
                            .arg(m_cornerRadius)
                            .arg(dpr);
    QPixmap cached;
    if (QPixmapCache::find(key, &cached))
        return cached;

    QSvgRenderer& svg = rendererFor(m_asset);
    if (!svg.isValid())
        return {};
    const QSize pixels(qRound(m_size.width() * dpr), qRound(m_size.height() * dpr));
    QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    {
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        QSizeF fitted = svg.viewBoxF().size();
        fitted.scale(QSizeF(pixels), Qt::KeepAspectRatio);
        const QRectF target(QPointF((pixels.width() - fitted.width()) / 2.0, (pixels.height() - fitted.height()) / 2.0),
                            fitted);
        if (m_cornerRadius > 0)
            painter.setClipPath(continuousRoundedRect(target, m_cornerRadius * dpr));
        svg.render(&painter, target);
    }
    QPixmap pixmap = QPixmap::fromImage(std::move(image));
    pixmap.setDevicePixelRatio(dpr);
    QPixmapCache::insert(key, pixmap);
    return pixmap;
}

void ImageView::paintEvent(QPaintEvent*)
{
    const QPixmap pixmap = renderedPixmap(devicePixelRatioF());
    if (pixmap.isNull())
        return;
    QPainter painter(this);
    painter.drawPixmap(0, 0, pixmap);
}

} // namespace qf::ui

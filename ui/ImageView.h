#pragma once

#include <QWidget>

namespace qf::ui {

// An image asset of the application (the logos), drawn sharp at any pixel density with its
// aspect ratio kept. It may be clipped to a rounded square.
class ImageView : public QWidget {
    Q_OBJECT

public:
    // `height` in points; the width follows the image's aspect ratio.
    ImageView(const QString& assetName, qreal height, QWidget* parent = nullptr);

    // Every asset shipped with the application.
    static QStringList assetNames();
    static bool assetExists(const QString& assetName);

    QString assetName() const { return m_asset; }
    void setCornerRadius(qreal radius);
    // Fixes both sides (aspect fit inside them).
    void setFixedImageSize(QSize size);

    QSize sizeHint() const override { return m_size; }
    QSize minimumSizeHint() const override { return m_size; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QPixmap renderedPixmap(qreal dpr) const;

    QString m_asset;
    QSize m_size;
    qreal m_cornerRadius = 0;
};

} // namespace qf::ui

#include "Symbol.h"

#include <QHash>
#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>

#include <cmath>
#include <memory>

namespace qf::ui {

namespace {

// How one symbol name is drawn: an icon of the bundled set in its regular outline, with a
// bold outline for heavier weights, or a single filled icon. A knockout icon, when given, is
// cut out of the base at the given scale (a filled square with a glyph in it).
struct SymbolSource {
    const char* regular;
    const char* bold = nullptr;
    const char* knockout = nullptr;
    qreal knockoutScale = 0.0;
};

const QHash<QString, SymbolSource>& catalogue()
{
    static const QHash<QString, SymbolSource> map = {
        {QStringLiteral("arrow.down.circle"), {"arrow-circle-down", "arrow-circle-down-bold"}},
        {QStringLiteral("arrow.right"), {"arrow-right", "arrow-right-bold"}},
        {QStringLiteral("arrow.up.right"), {"arrow-up-right", "arrow-up-right-bold"}},
        {QStringLiteral("arrow.up.right.square"), {"arrow-square-out", "arrow-square-out-bold"}},
        {QStringLiteral("bubble.left.and.text.bubble.right"), {"chats", "chats-bold"}},
        {QStringLiteral("checkmark"), {"check", "check-bold"}},
        {QStringLiteral("checkmark.circle.fill"), {"check-circle-fill"}},
        {QStringLiteral("checkmark.seal"), {"seal-check", "seal-check-bold"}},
        {QStringLiteral("chevron.down"), {"caret-down", "caret-down-bold"}},
        {QStringLiteral("chevron.left"), {"caret-left", "caret-left-bold"}},
        {QStringLiteral("chevron.right"), {"caret-right", "caret-right-bold"}},
        {QStringLiteral("chevron.up"), {"caret-up", "caret-up-bold"}},
        {QStringLiteral("command.square.fill"), {"square-fill", nullptr, "command-bold", 0.62}},
        {QStringLiteral("cpu.fill"), {"cpu-fill"}},
        {QStringLiteral("creditcard"), {"credit-card", "credit-card-bold"}},
        {QStringLiteral("doc.on.clipboard"), {"clipboard-text", "clipboard-text-bold"}},
        {QStringLiteral("doc.text.magnifyingglass"), {"file-magnifying-glass", "file-magnifying-glass-bold"}},
        {QStringLiteral("exclamationmark"), {"exclamation-mark", "exclamation-mark-bold"}},
        {QStringLiteral("exclamationmark.triangle.fill"), {"warning-fill"}},
        {QStringLiteral("eye"), {"eye", "eye-bold"}},
        {QStringLiteral("eye.slash"), {"eye-slash", "eye-slash-bold"}},
        {QStringLiteral("folder"), {"folder", "folder-bold"}},
        {QStringLiteral("folder.badge.plus"), {"folder-plus", "folder-plus-bold"}},
        {QStringLiteral("graduationcap"), {"graduation-cap", "graduation-cap-bold"}},
        {QStringLiteral("hammer"), {"hammer", "hammer-bold"}},
        {QStringLiteral("hand.wave.fill"), {"hand-waving-fill"}},
        {QStringLiteral("key.fill"), {"key-fill"}},
        {QStringLiteral("lightbulb.fill"), {"lightbulb-fill"}},
        {QStringLiteral("mug"), {"coffee", "coffee-bold"}},
        {QStringLiteral("person.circle.fill"), {"user-circle-fill"}},
        {QStringLiteral("info.circle"), {"info", "info-bold"}},
        {QStringLiteral("questionmark.circle"), {"question", "question-bold"}},
        {QStringLiteral("questionmark.circle.fill"), {"question-fill"}},
        {QStringLiteral("server.rack"), {"hard-drives", "hard-drives-bold"}},
        {QStringLiteral("sparkles"), {"sparkle-fill"}},
        {QStringLiteral("star.fill"), {"star-fill"}},
        {QStringLiteral("terminal"), {"terminal-window", "terminal-window-bold"}},
        {QStringLiteral("terminal.fill"), {"terminal-window-fill"}},
        {QStringLiteral("trash"), {"trash", "trash-bold"}},
        {QStringLiteral("wrench.and.screwdriver"), {"wrench-fill"}},
        {QStringLiteral("xmark"), {"x", "x-bold"}},
        {QStringLiteral("xmark.circle.fill"), {"x-circle-fill"}},
    };
    return map;
}

QSvgRenderer* renderer(const char* file)
{
    static QHash<QString, std::shared_ptr<QSvgRenderer>> renderers;
    const QString key = QString::fromLatin1(file);
    auto it = renderers.find(key);
    if (it == renderers.end()) {
        auto svg = std::make_shared<QSvgRenderer>(QStringLiteral(":/icons/%1.svg").arg(key));
        it = renderers.insert(key, svg);
    }
    return it.value()->isValid() ? it.value().get() : nullptr;
}

} // namespace

namespace Symbol {

bool exists(const QString& name) { return catalogue().contains(name); }

QStringList names()
{
    QStringList list = catalogue().keys();
    list.sort();
    return list;
}

int boxSize(qreal pointSize) { return qMax(1, qRound(pointSize * 1.2)); }

QPixmap pixmap(const QString& name, qreal pointSize, const QColor& color, qreal devicePixelRatio, SymbolWeight weight)
{
    const auto entry = catalogue().constFind(name);
    if (entry == catalogue().constEnd())
        return {};
    const SymbolSource& source = entry.value();
    const bool heavy = weight == SymbolWeight::semibold || weight == SymbolWeight::bold;
    const char* file = heavy && source.bold ? source.bold : source.regular;

    const int box = boxSize(pointSize);
    const qreal dpr = devicePixelRatio > 0 ? devicePixelRatio : 1.0;
    const QString key = QStringLiteral("qf-symbol:%1:%2:%3:%4:%5")
                            .arg(QLatin1String(file))
                            .arg(box)
                            .arg(dpr)
                            .arg(color.rgba(), 0, 16)
                            .arg(source.knockout ? 1 : 0);
    QPixmap cached;
    if (QPixmapCache::find(key, &cached))
        return cached;

    QSvgRenderer* svg = renderer(file);
    if (!svg)
        return {};

    const int pixels = qMax(1, qRound(box * dpr));
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    {
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        svg->render(&painter, QRectF(0, 0, pixels, pixels));
        if (source.knockout) {
            if (QSvgRenderer* cut = renderer(source.knockout)) {
                const qreal side = pixels * source.knockoutScale;
                const qreal inset = (pixels - side) / 2.0;
                painter.setCompositionMode(QPainter::CompositionMode_DestinationOut);
                cut->render(&painter, QRectF(inset, inset, side, side));
            }
        }
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        painter.fillRect(image.rect(), color);
    }
    QPixmap result = QPixmap::fromImage(std::move(image));
    result.setDevicePixelRatio(dpr);
    QPixmapCache::insert(key, result);
    return result;
}

} // namespace Symbol

SymbolView::SymbolView(const QString& name, qreal pointSize, Tint tint, SymbolWeight weight, QWidget* parent)
    : QWidget(parent), m_name(name), m_pointSize(pointSize), m_tint(tint), m_weight(weight)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void SymbolView::setName(const QString& name)
{
    if (name == m_name)
        return;
    m_name = name;
    update();
}

void SymbolView::setTint(const Tint& tint)
{
    if (tint == m_tint)
        return;
    m_tint = tint;
    update();
}

void SymbolView::setPointSize(qreal pointSize)
{
    if (qFuzzyCompare(pointSize, m_pointSize))
        return;
    m_pointSize = pointSize;
    updateGeometry();
    update();
}

void SymbolView::setWeight(SymbolWeight weight)
{
    if (weight == m_weight)
        return;
    m_weight = weight;
    update();
}

QSize SymbolView::sizeHint() const
{
    const int box = Symbol::boxSize(m_pointSize);
    return {box, box};
}

void SymbolView::paintEvent(QPaintEvent*)
{
    const QPixmap icon = Symbol::pixmap(m_name, m_pointSize, m_tint.resolve(), devicePixelRatioF(), m_weight);
    if (icon.isNull())
        return;
    QPainter painter(this);
    const QSizeF logical = icon.deviceIndependentSize();
    const QPointF origin((width() - logical.width()) / 2.0, (height() - logical.height()) / 2.0);
    painter.drawPixmap(origin, icon);
}

} // namespace qf::ui

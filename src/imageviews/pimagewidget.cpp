// SPDX-License-Identifier: MIT
#include "pimagewidget.h"

#include "accessibleimage.h"
#include "base/readablecolor.h"
#include "base/whilealive.h"
#include "frame/stringhelper.h"
#include "pictureplace.h"

#include <Hueloft/POrvGuiTheme>

#include <QAccessible>
#include <QHelpEvent>
#include <QPainter>
#include <QPainterPath>
#include <QStyle>
#include <QTimer>
#include <QToolTip>

#include <algorithm>
#include <optional>
#include <utility>

using Hueloft::POrvGuiTheme;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace CorvelGui {

namespace {

constexpr int hintWidth = 240;
constexpr qreal hintRatio = 4.0 / 3;
constexpr QSize smallestSize(48, 36);
constexpr auto loadingDelay = 250ms; // most pictures are there by then
constexpr int textMargin = 6;

QColor calmColor(const QPalette& palette, QPalette::ColorRole role)
{
    constexpr float calm = 0.4F;
    const QColor ground = palette.color(QPalette::Window);
    return readableOn(mixed(palette.color(role), ground, calm), ground);
}

/// A landscape in a border, for programs without a placeholder of their own.
void drawSign(QPainter& painter, const QRectF& room, const QColor& color)
{
    constexpr qreal largest = 64;
    const qreal width = std::min({room.width() * 0.7, room.height() * 0.7 / 0.75, largest});
    QRectF border(0, 0, width, width * 0.75);
    border.moveCenter(room.center());
    const auto at = [&border](qreal x, qreal y) {
        return border.topLeft() + QPointF(x * border.width(), y * border.height());
    };
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(
        QPen(color, std::max(width / 24, 1.0), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(border, width / 12, width / 12);
    painter.drawPolyline(
        QPolygonF{at(0.08, 0.85), at(0.36, 0.45), at(0.56, 0.72), at(0.70, 0.55), at(0.92, 0.85)});
    painter.drawEllipse(at(0.72, 0.28), width / 14, width / 14);
}

} // namespace

struct PImageWidget::Private
{
    /// Of what was painted last.
    struct Shown
    {
        QPixmap pixmap;
        qint64 image = 0;
        PicturePlace place;
        qreal scale = 0;
    };

    ImageFromRequestDescriptor* descriptor = nullptr;
    QUrl source;
    State state = State::Empty;
    QImage image;
    QSize fullSize;
    QString errorText;

    Fit fit = Fit::Contain;
    Qt::Alignment alignment = Qt::AlignCenter;
    qreal aspectRatio = 0;
    QString placeholder = u":/Resources/previewnot.png"_s;
    std::optional<QImage> sign; // the placeholder, once it is needed

    QTimer loadingDelay;
    Shown shown;
};

PImageWidget::PImageWidget(QWidget* parent) : QWidget(parent), d(std::make_unique<Private>())
{
    installAccessibleImage();
    d->descriptor = new ImageFromRequestDescriptor(this);
    connect(d->descriptor, &ImageFromRequestDescriptor::received, this,
            [this](const QImage& image, const QSize& fullSize) {
                take(State::Ready, image, fullSize, {});
            });
    connect(d->descriptor, &ImageFromRequestDescriptor::failed, this,
            [this](const QString& text) { take(State::Failed, {}, {}, text); });
    d->loadingDelay.setSingleShot(true);
    d->loadingDelay.setInterval(loadingDelay);
    connect(&d->loadingDelay, &QTimer::timeout, this, qOverload<>(&QWidget::update));
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
}

PImageWidget::~PImageWidget() = default;

QImage PImageWidget::image() const
{
    return d->image;
}

PImageWidget::Fit PImageWidget::fit() const
{
    return d->fit;
}

void PImageWidget::setFit(Fit fit)
{
    if (d->fit == fit)
        return;
    d->fit = fit;
    update();
    Q_EMIT fitChanged(fit);
}

Qt::Alignment PImageWidget::alignment() const
{
    return d->alignment;
}

void PImageWidget::setAlignment(Qt::Alignment alignment)
{
    if (d->alignment == alignment)
        return;
    d->alignment = alignment;
    update();
    Q_EMIT alignmentChanged(alignment);
}

qreal PImageWidget::aspectRatio() const
{
    return d->aspectRatio;
}

void PImageWidget::setAspectRatio(qreal ratio)
{
    const qreal known = ratio > 0 ? ratio : 0;
    if (d->aspectRatio == known)
        return;
    d->aspectRatio = known;
    QSizePolicy policy = sizePolicy();
    policy.setHeightForWidth(known > 0);
    setSizePolicy(policy);
    updateGeometry();
    Q_EMIT aspectRatioChanged(known);
}

QString PImageWidget::placeholder() const
{
    return d->placeholder;
}

void PImageWidget::setPlaceholder(const QString& path)
{
    if (d->placeholder == path)
        return;
    d->placeholder = path;
    d->sign.reset();
    update();
    Q_EMIT placeholderChanged(path);
}

PImageWidget::State PImageWidget::state() const
{
    return d->state;
}

QString PImageWidget::errorText() const
{
    return d->errorText;
}

QSize PImageWidget::fullSize() const
{
    return d->fullSize;
}

QUrl PImageWidget::source() const
{
    return d->source;
}

ImageFromRequestDescriptor* PImageWidget::descriptor() const
{
    return d->descriptor;
}

QSize PImageWidget::sizeHint() const
{
    const qreal ratio = d->aspectRatio > 0 ? d->aspectRatio : hintRatio;
    return {hintWidth, int(std::clamp<qreal>(hintWidth / ratio, 1, 4 * hintWidth))};
}

QSize PImageWidget::minimumSizeHint() const
{
    return smallestSize;
}

bool PImageWidget::hasHeightForWidth() const
{
    return d->aspectRatio > 0;
}

int PImageWidget::heightForWidth(int width) const
{
    if (d->aspectRatio <= 0)
        return -1;
    return int(std::min<qreal>(width / d->aspectRatio, QWIDGETSIZE_MAX));
}

void PImageWidget::setImage(const QImage& image)
{
    d->descriptor->cancel();
    const QUrl before = std::exchange(d->source, QUrl());
    whileAlive(
        this, [&] { take(image.isNull() ? State::Empty : State::Ready, image, image.size(), {}); },
        [&] { tellSource(before); });
}

void PImageWidget::setSource(const QUrl& source)
{
    if (source.isEmpty())
        return setImage({});
    const QUrl before = std::exchange(d->source, source);
    d->descriptor->request(source);
    whileAlive(
        this, [this] { take(State::Loading, {}, {}, {}); }, [&] { tellSource(before); });
}

void PImageWidget::tellSource(const QUrl& before)
{
    if (d->source != before)
        Q_EMIT sourceChanged(d->source);
}

void PImageWidget::reload()
{
    if (d->source.isEmpty())
        return;
    d->descriptor->request(d->source);
    take(State::Loading, d->image, d->fullSize, {});
}

void PImageWidget::take(State state, const QImage& image, const QSize& fullSize,
                        const QString& error)
{
    const bool isOther = d->image.cacheKey() != image.cacheKey();
    const bool isChange = d->state != state;
    d->state = state;
    d->image = image;
    d->fullSize = fullSize;
    d->errorText = error;
    if (state == State::Loading)
        d->loadingDelay.start();
    else
        d->loadingDelay.stop();
    update();
    if (!isOther && !isChange)
        return;
    QAccessibleEvent description(this, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&description);
    const bool alive = whileAlive(this, [&] {
        if (isOther)
            Q_EMIT imageChanged();
    });
    // A slot may have set another one.
    if (alive && isChange && d->state == state)
        Q_EMIT stateChanged(state);
}

bool PImageWidget::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip || !toolTip().isEmpty() || d->errorText.isEmpty())
        return QWidget::event(event);
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(),
                       StringHelper::plainToolTip(d->errorText), this);
    return true;
}

void PImageWidget::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        update();
    QWidget::changeEvent(event);
}

void PImageWidget::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    if (contentsRect().isEmpty())
        return;
    if (d->image.isNull())
        paintNoImage(painter);
    else
        paintImage(painter);
}

void PImageWidget::paintImage(QPainter& painter)
{
    const PicturePlace place =
        placePicture(d->image.deviceIndependentSize(), contentsRect(), d->fit,
                     QStyle::visualAlignment(layoutDirection(), d->alignment));
    const QRect target = place.target.toRect();
    const qreal scale = devicePixelRatioF();
    Private::Shown& shown = d->shown;
    if (shown.image != d->image.cacheKey() || shown.place != place || shown.scale != scale) {
        const QSizeF pixels = d->image.size();
        const QRect part(qRound(place.source.x() * pixels.width()),
                         qRound(place.source.y() * pixels.height()),
                         std::max(qRound(place.source.width() * pixels.width()), 1),
                         std::max(qRound(place.source.height() * pixels.height()), 1));
        const QImage image = part == d->image.rect() ? d->image : d->image.copy(part);
        shown = {QPixmap::fromImage(
                     ImageHelper::scaled(image, target.size(), scale, Qt::IgnoreAspectRatio)),
                 d->image.cacheKey(), place, scale};
    }
    painter.drawPixmap(target.topLeft(), shown.pixmap);
}

void PImageWidget::paintNoImage(QPainter& painter)
{
    QString text = d->errorText;
    if (d->state == State::Loading) {
        if (d->loadingDelay.isActive())
            return;
        text = tr("Loading…");
    }
    const QRect room = contentsRect().adjusted(textMargin, textMargin, -textMargin, -textMargin);
    constexpr int flags = int(Qt::AlignHCenter) | int(Qt::AlignTop) | int(Qt::TextWordWrap);
    QRect below = fontMetrics().boundingRect(room, flags, text);
    // Where there is no room for all of it, the tooltip has it.
    const bool hasRoom =
        !text.isEmpty() && below.height() <= room.height() / 2 && below.width() <= room.width();
    QRect above = room;
    if (hasRoom)
        above.setHeight(room.height() - below.height() - textMargin);
    if (!d->sign) {
        constexpr QSize largest(512, 512);
        d->sign = ImageHelper::readFile(d->placeholder, {.size = largest}).image;
    }
    const QColor calm = calmColor(palette(), QPalette::WindowText);
    if (d->sign->isNull()) {
        // A failure that there is no room to tell is seen all the same.
        const bool isUntold = d->state == State::Failed && !hasRoom;
        drawSign(painter, above, isUntold ? POrvGuiTheme::statusRed() : calm);
    } else if (!above.isEmpty()) {
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(placePicture(d->sign->size(), above, Fit::Shrink, Qt::AlignCenter).target,
                          *d->sign);
    }
    if (!hasRoom)
        return;
    below.moveTop(above.bottom() + textMargin);
    painter.setPen(d->errorText.isEmpty() ? calm : POrvGuiTheme::statusRed());
    painter.drawText(QRect(room.left(), below.top(), room.width(), below.height()), flags, text);
}

} // namespace CorvelGui

// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/ImageFromRequestDescriptor>
#include <CorvelGui/ImageHelper>
#include <CorvelGui/corvelgui_export.h>

#include <QImage>
#include <QUrl>
#include <QWidget>

#include <memory>

namespace CorvelGui {

/// Shows a picture: one that a client has, or one that it gets itself from an address or a file,
/// without stopping the window. While there is none it shows a placeholder, and when a picture
/// could not be had, why.
///
/// Give it an accessible name that says what the picture shows. Assistive technology reads its
/// state or its size in pixels as the description.
class CORVELGUI_EXPORT PImageWidget : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QImage image READ image WRITE setImage NOTIFY imageChanged DESIGNABLE false)
    Q_PROPERTY(Fit fit READ fit WRITE setFit NOTIFY fitChanged)
    Q_PROPERTY(Qt::Alignment alignment READ alignment WRITE setAlignment NOTIFY alignmentChanged)
    Q_PROPERTY(qreal aspectRatio READ aspectRatio WRITE setAspectRatio NOTIFY aspectRatioChanged)
    Q_PROPERTY(QString placeholder READ placeholder WRITE setPlaceholder NOTIFY placeholderChanged)
    Q_PROPERTY(State state READ state NOTIFY stateChanged)
    Q_PROPERTY(QUrl source READ source WRITE setSource NOTIFY sourceChanged)

public:
    enum class Fit {
        Contain, ///< all of the picture, as large as there is room
        Shrink,  ///< the same, but never larger than the picture is
        Cover,   ///< the room is filled, and what of the picture does not fit is cut off
        Stretch, ///< all of the picture in all of the room, whatever that does to its shape
    };
    Q_ENUM(Fit)
    using enum Fit; // uic of Qt 6.4 leaves out its name

    enum class State {
        Empty,   ///< nothing to show
        Loading, ///< a picture is got; the one before is shown meanwhile if there is one
        Ready,   ///< image() is shown
        Failed,  ///< errorText() says why there is no picture
    };
    Q_ENUM(State)

    explicit PImageWidget(QWidget* parent = nullptr);
    ~PImageWidget() override;

    /// The picture that is shown; null if there is none.
    QImage image() const;
    /// The default is Fit::Contain.
    Fit fit() const;
    void setFit(Fit fit);
    /// Where the picture stands if it does not fill the room; with Fit::Cover, which part of it is
    /// not cut off. Left and right change sides with the layout direction, unless
    /// Qt::AlignAbsolute is set. The default is Qt::AlignCenter.
    Qt::Alignment alignment() const;
    void setAlignment(Qt::Alignment alignment);
    /// Width by height that layouts give the widget, such as 16.0 / 9. The default is 0, which
    /// leaves it to them; negative ones count as 0.
    qreal aspectRatio() const;
    void setAspectRatio(qreal ratio);
    /// The file or resource that is shown while there is no picture. The default is
    /// ":/Resources/previewnot.png", which the program may have in its resources. Where there is
    /// nothing to read, the widget draws a sign of its own.
    QString placeholder() const;
    void setPlaceholder(const QString& path);

    State state() const;
    /// Why there is no picture, for the user; empty unless state() is State::Failed.
    QString errorText() const;
    /// The size of the picture in pixels where it came from, also if image() is smaller.
    QSize fullSize() const;
    /// Where the picture comes from; empty for one of the client.
    QUrl source() const;

    /// Owned by the widget. Clients set limits there; with setSource() they make requests.
    ImageFromRequestDescriptor* descriptor() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override;
    int heightForWidth(int width) const override;

public Q_SLOTS:
    /// Shows @p image, or with a null one nothing. Ends a request that is under way.
    void setImage(const QImage& image);
    /// Gets the picture at a web address, a local file or a resource ("qrc:") and shows it. The one
    /// before is no longer shown. An empty address does what setImage() does with a null image.
    void setSource(const QUrl& source);
    /// Gets the picture at source() again, and shows the one before until then. Does nothing
    /// without a source.
    void reload();

Q_SIGNALS:
    /// Emitted when image() is another one, before stateChanged().
    void imageChanged();
    /// Emitted when state() has changed, for clients and from the event loop alike.
    void stateChanged(CorvelGui::PImageWidget::State state);
    /// Emitted when the property has changed; the same holds for the following.
    void fitChanged(CorvelGui::PImageWidget::Fit fit);
    void alignmentChanged(Qt::Alignment alignment);
    void aspectRatioChanged(qreal ratio);
    void placeholderChanged(const QString& path);
    /// Emitted when source() has changed, after the signals about the image and the state.
    void sourceChanged(const QUrl& source);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void take(State state, const QImage& image, const QSize& fullSize, const QString& error);
    void tellSource(const QUrl& before);
    void paintImage(QPainter& painter);
    void paintNoImage(QPainter& painter);

    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace CorvelGui

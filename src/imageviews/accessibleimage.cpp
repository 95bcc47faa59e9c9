// SPDX-License-Identifier: MIT
#include "accessibleimage.h"

#include "pimagewidget.h"

#include <QAccessibleWidget>
#include <QLocale>

namespace CorvelGui {

namespace {

class ImageInterface : public QAccessibleWidget
{
public:
    explicit ImageInterface(PImageWidget* image)
        : QAccessibleWidget(image, QAccessible::Graphic), m_image(image)
    {}

    QString text(QAccessible::Text kind) const override
    {
        const QString own = QAccessibleWidget::text(kind);
        return kind == QAccessible::Description && own.isEmpty() ? description() : own;
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.busy = m_image->state() == PImageWidget::State::Loading;
        return state;
    }

private:
    QString description() const
    {
        const QLocale locale;
        switch (m_image->state()) {
        case PImageWidget::State::Loading:
            return PImageWidget::tr("Loading…");
        case PImageWidget::State::Failed:
            return m_image->errorText();
        case PImageWidget::State::Ready:
            return PImageWidget::tr("%1 × %2 pixels")
                .arg(locale.toString(m_image->fullSize().width()),
                     locale.toString(m_image->fullSize().height()));
        case PImageWidget::State::Empty:
            break;
        }
        return PImageWidget::tr("No picture");
    }

    PImageWidget* const m_image;
};

QAccessibleInterface* createImageInterface(const QString&, QObject* object)
{
    auto* image = qobject_cast<PImageWidget*>(object);
    return image ? new ImageInterface(image) : nullptr;
}

} // namespace

void installAccessibleImage()
{
    QAccessible::installFactory(createImageInterface); // knows what is installed already
}

} // namespace CorvelGui

// SPDX-License-Identifier: MIT
#include "aboutinfo7.h"

#include "harmlessbrowser.h"
#include "weblink.h"

#include <Hueloft/POrvGuiTheme>

#include <QCoreApplication>
#include <QEvent>
#include <QFormLayout>
#include <QGuiApplication>
#include <QLabel>

#include <array>

using namespace Qt::StringLiterals;

namespace CorvelGui {

namespace {

constexpr int logoSide = 64;

struct AboutLink
{
    QString text;
    QUrl address;
};

QLabel* createText(Qt::TextInteractionFlags interaction = Qt::TextSelectableByMouse |
                                                          Qt::TextSelectableByKeyboard)
{
    auto* label = new QLabel;
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(interaction);
    label->setWordWrap(true);
    return label;
}

} // namespace

struct AboutInfo7::Private
{
    enum Row { Version, Build, Look, RowCount };

    QString name = QGuiApplication::applicationDisplayName();
    QString version = QCoreApplication::applicationVersion();
    QString build{};
    QString copyright{};
    QIcon logo = QGuiApplication::windowIcon();
    QList<AboutLink> links{};

    QLabel* logoLabel = new QLabel;
    QLabel* nameLabel = createText();
    QFormLayout* rows = new QFormLayout;
    std::array<QLabel*, RowCount> labels{};
    std::array<QLabel*, RowCount> values{};
    QLabel* copyrightLabel = createText();
    QVBoxLayout* linkLayout = new QVBoxLayout;

    QString valueOf(int row) const
    {
        if (row == Version)
            return version;
        if (row == Build)
            return build;
        return Hueloft::POrvGuiTheme::bPantherTheme ? tr("Dark") : tr("Light");
    }
};

AboutInfo7::AboutInfo7(QWidget* parent) : PWidget(parent), d(new Private)
{
    for (int row = 0; row < Private::RowCount; ++row) {
        d->labels[size_t(row)] = new QLabel;
        d->values[size_t(row)] = createText();
        d->rows->addRow(d->labels[size_t(row)], d->values[size_t(row)]);
    }
    auto* texts = new QVBoxLayout;
    texts->addWidget(d->nameLabel);
    texts->addLayout(d->rows);
    texts->addWidget(d->copyrightLabel);
    texts->addLayout(d->linkLayout);
    texts->addStretch();
    auto* layout = new QHBoxLayout(this);
    layout->setSpacing(16);
    layout->addWidget(d->logoLabel, 0, Qt::AlignTop);
    layout->addLayout(texts, 1);
    retranslate();
}

AboutInfo7::~AboutInfo7() = default;

QString AboutInfo7::productName() const
{
    return d->name;
}

void AboutInfo7::setProductName(const QString& name)
{
    take(d->name, name);
}

QString AboutInfo7::version() const
{
    return d->version;
}

void AboutInfo7::setVersion(const QString& version)
{
    take(d->version, version);
}

QString AboutInfo7::build() const
{
    return d->build;
}

void AboutInfo7::setBuild(const QString& build)
{
    take(d->build, build);
}

QString AboutInfo7::copyright() const
{
    return d->copyright;
}

void AboutInfo7::setCopyright(const QString& copyright)
{
    take(d->copyright, copyright);
}

QIcon AboutInfo7::logo() const
{
    return d->logo;
}

void AboutInfo7::setLogo(const QIcon& logo)
{
    if (d->logo.cacheKey() == logo.cacheKey())
        return;
    d->logo = logo;
    showInfo();
    Q_EMIT infoChanged();
}

void AboutInfo7::take(QString& value, const QString& text)
{
    if (value == text)
        return;
    value = text;
    showInfo();
    Q_EMIT infoChanged();
}

void AboutInfo7::addLink(const QString& text, const QUrl& address)
{
    d->links.append({text, address});
    showLinks();
}

void AboutInfo7::clearLinks()
{
    d->links.clear();
    showLinks();
}

QString AboutInfo7::toPlainText() const
{
    QStringList lines{d->name};
    for (int row = 0; row < Private::RowCount; ++row) {
        if (!d->valueOf(row).isEmpty())
            lines.append(d->labels[size_t(row)]->text() + u' ' + d->valueOf(row));
    }
    if (!d->copyright.isEmpty())
        lines.append(d->copyright);
    return lines.join(u'\n');
}

void AboutInfo7::showInfo()
{
    d->logoLabel->setVisible(!d->logo.isNull());
    d->logoLabel->setPixmap(d->logo.pixmap(QSize(logoSide, logoSide), devicePixelRatio()));
    QFont large = font();
    large.setBold(true);
    large.setPointSizeF(large.pointSizeF() * 1.6);
    d->nameLabel->setFont(large);
    d->nameLabel->setText(d->name);
    for (int row = 0; row < Private::RowCount; ++row) {
        d->values[size_t(row)]->setText(d->valueOf(row));
        d->values[size_t(row)]->setAccessibleName(d->labels[size_t(row)]->text() + u' ' +
                                                  d->valueOf(row));
        d->rows->setRowVisible(row, !d->valueOf(row).isEmpty());
    }
    d->copyrightLabel->setVisible(!d->copyright.isEmpty());
    d->copyrightLabel->setText(d->copyright);
}

void AboutInfo7::showLinks()
{
    while (QLayoutItem* item = d->linkLayout->takeAt(0)) {
        item->widget()->hide();
        item->widget()->deleteLater(); // it may be what was clicked
        delete item;
    }
    for (const AboutLink& link : std::as_const(d->links)) {
        const bool leads = leadsToTheWeb(link.address);
        QLabel* label = createText(leads ? Qt::TextBrowserInteraction : Qt::TextSelectableByMouse);
        label->setTextFormat(Qt::RichText);
        label->setText(leads ? u"<a href=\"%1\">%2</a>"_s.arg(
                                   link.address.toString(QUrl::FullyEncoded).toHtmlEscaped(),
                                   link.text.toHtmlEscaped())
                             : link.text.toHtmlEscaped());
        label->setAccessibleName(link.text);
        connect(label, &QLabel::linkActivated, this,
                [](const QString& address) { openWebPage(QUrl(address)); });
        d->linkLayout->addWidget(label);
    }
}

void AboutInfo7::changeEvent(QEvent* event)
{
    PWidget::changeEvent(event);
    // The look is another; and a label keeps the colour of links that it was read with.
    if (event->type() == QEvent::PaletteChange) {
        showInfo();
        showLinks();
    }
}

void AboutInfo7::retranslate()
{
    d->labels[Private::Version]->setText(tr("Version:"));
    d->labels[Private::Build]->setText(tr("Build:"));
    d->labels[Private::Look]->setText(tr("Look:"));
    showInfo();
}

} // namespace CorvelGui

// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QImage>
#include <QSizeF>
#include <QTextDocument>
#include <QTextFormat>

namespace CorvelGui {

/// The text of a report, laid out in dots of its own: 300 of them are an inch on every printer and
/// every screen, so that pages break alike everywhere. All fonts have sizes in dots.
///
/// Pictures are kept compressed, and unpacked when they are painted.
class ReportDocument : public QTextDocument
{
    Q_OBJECT

public:
    static constexpr int dotsPerInch = 300;
    static qreal dotsOfMillimetres(qreal millimetres);
    static int dotsOfPoints(qreal points);

    explicit ReportDocument(QObject* parent = nullptr);

    /// Keeps a picture. It is as large as it was meant to be at 96 pixels per inch, but no larger
    /// than
    /// @p room, in dots.
    QTextImageFormat addPicture(const QImage& picture, const QSizeF& room);

    /// A picture that was kept.
    QImage picture(const QString& name) const;

protected:
    QVariant loadResource(int type, const QUrl& name) override;

private:
    QHash<QString, QByteArray> m_pictures;
};

} // namespace CorvelGui

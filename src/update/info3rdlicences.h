// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/PWidget>

#include <QList>
#include <QString>
#include <QStringList>
#include <QUrl>

#include <memory>

namespace CorvelGui {

/// The components that a program is made of, and their licences: a list with a filter, and beside
/// it what is known of the chosen one, with the texts of its licences. A part of a dialog or of a
/// page.
///
/// A text is read when its component is chosen. One that is missing is said to be, one of more than
/// half a mebibyte is shown in part, and one that is not UTF-8 is taken for Latin-1.
class CORVELGUI_EXPORT Info3rdLicences : public PWidget
{
    Q_OBJECT
    /// What the list is filtered by: part of a name, a version or a licence, in upper or lower
    /// case. Empty at first.
    Q_PROPERTY(QString filter READ filter WRITE setFilter NOTIFY filterChanged)
    /// The name of the chosen component; empty without one. Set to a name that is not in the
    /// list, it changes nothing.
    Q_PROPERTY(QString current READ current WRITE setCurrent NOTIFY currentChanged)

public:
    /// All texts are plain text.
    struct Component
    {
        QString name = {};
        QString version = {}; ///< may be empty
        QString licence = {}; ///< what it is called, such as "LGPL version 3"
        QString note = {};    ///< a few sentences, such as the copyright; may be empty
        QUrl homepage = {};   ///< shown as text; may be empty
        QStringList textFiles =
            {}; ///< files or resources with the texts of the licence; may be empty
    };

    explicit Info3rdLicences(QWidget* parent = nullptr);
    ~Info3rdLicences() override;

    /// Replaces the components, and chooses the first of them. They are listed in the order of
    /// their names.
    void setComponents(const QList<Component>& components);
    QList<Component> components() const;

    QString filter() const;
    void setFilter(const QString& filter);
    QString current() const;
    void setCurrent(const QString& name);

    /// All that is shown of the chosen component.
    QString toPlainText() const;

Q_SIGNALS:
    /// Emitted when the filter is another, whoever changed it.
    void filterChanged(const QString& filter);
    /// Emitted when another component is chosen, or none, whoever did it.
    void currentChanged(const QString& name);

public Q_SLOTS:
    /// Puts toPlainText() on the clipboard.
    void copy();

protected:
    void retranslate() override;

private:
    void showRows();
    void showCurrent();
    QString textOf(const Component& component) const;

    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace CorvelGui

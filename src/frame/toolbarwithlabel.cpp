// SPDX-License-Identifier: MIT
#include "toolbarwithlabel.h"

#include <QLabel>

using namespace Qt::StringLiterals;

namespace CorvelGui {

ToolBarWithLabel::ToolBarWithLabel(const QString& title, QWidget* parent) : QToolBar(title, parent)
{}

void ToolBarWithLabel::addLabel(const QString& text, const QColor& color)
{
    auto* spacer = new QWidget(this);
    spacer->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);

    auto* label = new QLabel(this);
    label->setTextFormat(Qt::RichText);

    addWidget(spacer);
    addWidget(label);
    label->setText(u"<span style=\"font-size:15pt; font-weight:600; color:%1;\"><b>%2</b></span>"_s
                       .arg(color.name())
                       .arg(text));
}

} // namespace CorvelGui

#include "core/widgets/numberfield.h"

#include "core/conversions.h"

#include <QFocusEvent>
#include <QRegularExpressionValidator>

NumberField::NumberField(QWidget *parent, const QString &picture) : QLineEdit(parent)
{
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    // The thousands point of the picture may stay in the text while editing.
    setValidator(new QRegularExpressionValidator(QRegularExpression(QStringLiteral("-?[0-9.]*,?[0-9]*")), this));
    setPicture(picture);
}

void NumberField::setPicture(const QString &picture)
{
    picture_ = picture;
    setFixedWidth(fontMetrics().horizontalAdvance(formatNumber(0, picture).size() < picture.size()
                                                       ? QString(picture.size(), u'0')
                                                       : formatNumber(0, picture))
                  + 18);
}

double NumberField::valor() const
{
    QString t = text().trimmed();
    t.remove(u'.');
    return val(VirgulaPonto(t));
}

void NumberField::setValor(double valor) { setText(formatNumber(valor, picture_)); }

QString NumberField::valorSql() const
{
    QString t = text().trimmed();
    t.remove(u'.');
    t = VirgulaPonto(t);
    return t.isEmpty() ? QStringLiteral("0") : t;
}

void NumberField::focusOutEvent(QFocusEvent *event)
{
    QLineEdit::focusOutEvent(event);
    if (event->reason() != Qt::ActiveWindowFocusReason && event->reason() != Qt::PopupFocusReason)
        setValor(valor());
}

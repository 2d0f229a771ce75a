#include "core/widgets/numberfield.h"

#include "core/conversions.h"

#include <QFocusEvent>
#include <QKeyEvent>
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

void NumberField::keyPressEvent(QKeyEvent *event)
{
    const bool keypad = event->modifiers() & Qt::KeypadModifier;
    const bool decimalKey = (keypad && (event->key() == Qt::Key_Period || event->key() == Qt::Key_Comma))
                            || (event->key() == Qt::Key_Period && event->text() == QStringLiteral("."));
    if (!decimalKey || isReadOnly()) {
        QLineEdit::keyPressEvent(event);
        return;
    }
    // The text that stays after the key: the selection is typed over.
    QString rest = text();
    if (hasSelectedText())
        rest.remove(selectionStart(), selectedText().size());
    if (!keypad && rest.contains(u',')) {
        // With a comma there a point could only be a thousands point typed by
        // hand, which the picture puts in by itself on leaving: refused.
        event->accept();
        return;
    }
    QKeyEvent comma(QEvent::KeyPress, Qt::Key_Comma, event->modifiers() & ~Qt::KeypadModifier, QStringLiteral(","),
                    event->isAutoRepeat(), ushort(event->count()));
    QLineEdit::keyPressEvent(&comma);
    event->setAccepted(comma.isAccepted());
}

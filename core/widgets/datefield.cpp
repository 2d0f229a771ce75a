#include "core/widgets/datefield.h"

#include "core/conversions.h"

#include <QFocusEvent>
#include <QTimer>

DateField::DateField(QWidget *parent, Formato formato) : MaskEdit(parent), formato_(formato)
{
    setFormato(formato);
}

void DateField::setFormato(Formato formato)
{
    formato_ = formato;
    switch (formato) {
    case DiaMesAno: setMascara(QStringLiteral("##/##/####")); break;
    case MesAno: setMascara(QStringLiteral("##/####")); break;
    case Ano: setMascara(QStringLiteral("####")); break;
    }
    setFixedWidth(fontMetrics().horizontalAdvance(textoVazio() + QStringLiteral("00")) + 14);
}

bool DateField::vazio() const { return textoPuro().isEmpty(); }

QDate DateField::data() const
{
    const QString t = textoMascarado();
    switch (formato_) {
    case DiaMesAno: return dateFromText(t);
    case MesAno: return dateFromText(QStringLiteral("01/") + t);
    case Ano: return dateFromText(QStringLiteral("01/01/") + t);
    }
    return {};
}

void DateField::setData(const QDate &d)
{
    if (!d.isValid()) {
        limpa();
        return;
    }
    switch (formato_) {
    case DiaMesAno: setText(formatDate(d, QStringLiteral("dd/mm/yyyy"))); break;
    case MesAno: setText(formatDate(d, QStringLiteral("mm/yyyy"))); break;
    case Ano: setText(formatDate(d, QStringLiteral("yyyy"))); break;
    }
}

void DateField::limpa() { clear(); }

bool DateField::valido() const
{
    if (vazio())
        return true;
    const QDate d = data();
    if (!d.isValid())
        return false;
    return (!minimo_.isValid() || d >= minimo_) && (!maximo_.isValid() || d <= maximo_);
}

QString DateField::dataSql() const
{
    const QDate d = data();
    if (vazio() || !d.isValid())
        return QStringLiteral("Null");
    return u'#' + formatDate(d, QStringLiteral("mm/dd/yyyy")) + u'#';
}

void DateField::focusOutEvent(QFocusEvent *event)
{
    MaskEdit::focusOutEvent(event);
    // A date that does not exist keeps the focus, as the date control did;
    // the move to another window is not a leaving of the field.
    if (event->reason() == Qt::ActiveWindowFocusReason || event->reason() == Qt::PopupFocusReason || valido())
        return;
    QTimer::singleShot(0, this, [this] {
        setFocus();
        selectAll();
    });
}

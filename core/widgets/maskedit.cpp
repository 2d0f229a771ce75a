#include "core/widgets/maskedit.h"

#include "core/conversions.h"

MaskEdit::MaskEdit(QWidget *parent) : QLineEdit(parent) {}

void MaskEdit::setMascara(const QString &mascara)
{
    mascara_ = mascara;
    // '#' is a digit; '?' a letter, and a mask with letters ("???-####", a
    // plate) takes them in capitals.
    QString qtMask = mascara.contains(QLatin1Char('?')) ? QStringLiteral(">") : QString();
    for (QChar c : mascara) {
        if (c == QLatin1Char('#'))
            qtMask += QLatin1Char('0');  // a digit, optional
        else if (c == QLatin1Char('?'))
            qtMask += QLatin1Char('a');  // a letter, optional
        else if (QStringLiteral("09AaNnXx<>!\\[]{}").contains(c))
            qtMask += QLatin1Char('\\') + c;  // a literal that Qt would read as a mask character
        else
            qtMask += c;
    }
    setInputMask(qtMask + QStringLiteral(";_"));
}

QString MaskEdit::textoMascarado() const { return inputMask().isEmpty() ? text() : displayText(); }

QString MaskEdit::textoPuro() const { return bareText(textoMascarado()); }

QString MaskEdit::textoVazio() const
{
    QString empty = mascara_;
    empty.replace(QLatin1Char('#'), QLatin1Char('_'));
    empty.replace(QLatin1Char('?'), QLatin1Char('_'));
    return empty;
}

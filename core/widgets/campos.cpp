#include "core/widgets/campos.h"

#include "core/widgets/datefield.h"
#include "core/widgets/maskedit.h"
#include "core/widgets/numberfield.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QPlainTextEdit>

namespace {
// Colours the field's edit background.
void pintaFundo(QWidget &w, bool enabled, const QColor &face)
{
    QPalette p = w.palette();
    p.setColor(QPalette::Base, enabled ? QColor(Qt::white) : face);
    w.setPalette(p);
}

// The line edit inside an editable combo is the combo's own, not a field.
bool partOfCombo(const QWidget *w) { return qobject_cast<const QComboBox *>(w->parentWidget()) != nullptr; }
}

void LimpaCampos(QWidget &container)
{
    for (QWidget *w : container.findChildren<QWidget *>()) {
        if (partOfCombo(w))
            continue;
        if (auto *d = qobject_cast<DateField *>(w)) {
            if (d->formato() != DateField::MesAno)
                d->limpa();
        } else if (auto *n = qobject_cast<NumberField *>(w)) {
            n->setValor(0);
        } else if (auto *e = qobject_cast<QLineEdit *>(w)) {
            e->clear();
        } else if (auto *c = qobject_cast<QCheckBox *>(w)) {
            c->setChecked(false);
        } else if (auto *o = qobject_cast<QRadioButton *>(w)) {
            // An option group keeps one button checked unless told otherwise.
            const bool exclusivo = o->autoExclusive();
            o->setAutoExclusive(false);
            o->setChecked(false);
            o->setAutoExclusive(exclusivo);
        } else if (auto *l = qobject_cast<QLabel *>(w)) {
            // A framed label shows a value of the record; a plain one is a caption.
            if (l->frameShape() != QFrame::NoFrame)
                l->clear();
        } else if (auto *t = qobject_cast<QPlainTextEdit *>(w)) {
            t->clear();
        } else if (auto *cb = qobject_cast<QComboBox *>(w)) {
            if (cb->isEditable())
                cb->setEditText(QString());
            else
                cb->setCurrentIndex(-1);
        }
    }
}

void HabilitaCampos(QWidget &container, bool enabled)
{
    const QColor face = container.palette().color(QPalette::Button);
    for (QWidget *w : container.findChildren<QWidget *>()) {
        if (partOfCombo(w))
            continue;
        if (qobject_cast<QAbstractButton *>(w) || qobject_cast<NumberField *>(w) || qobject_cast<QAbstractSpinBox *>(w)) {
            w->setEnabled(enabled);
        } else if (qobject_cast<QLineEdit *>(w) || qobject_cast<QPlainTextEdit *>(w) || qobject_cast<QComboBox *>(w)) {
            w->setEnabled(enabled);
            pintaFundo(*w, enabled, face);
        }
    }
}

void PreencheVazios(QWidget &container)
{
    for (QWidget *w : container.findChildren<QWidget *>()) {
        if (partOfCombo(w) || qobject_cast<DateField *>(w) || qobject_cast<NumberField *>(w))
            continue;
        if (auto *m = qobject_cast<MaskEdit *>(w); m && !m->inputMask().isEmpty())
            continue;  // a masked field always holds its prompts
        if (auto *e = qobject_cast<QLineEdit *>(w); e && e->text().isEmpty())
            e->setText(QStringLiteral(" "));
        else if (auto *t = qobject_cast<QPlainTextEdit *>(w); t && t->toPlainText().isEmpty())
            t->setPlainText(QStringLiteral(" "));
    }
}

void SelecionaCampo()
{
    QWidget *w = QApplication::focusWidget();
    if (!w || qobject_cast<QAbstractButton *>(w))
        return;
    if (auto *m = qobject_cast<MaskEdit *>(w); m && !m->mascara().isEmpty())
        m->setSelection(0, int(m->mascara().size()));
    else if (auto *e = qobject_cast<QLineEdit *>(w))
        e->setSelection(0, int(e->text().size()));
    else if (auto *s = qobject_cast<QAbstractSpinBox *>(w))
        s->selectAll();
    else if (auto *t = qobject_cast<QPlainTextEdit *>(w))
        t->selectAll();
}

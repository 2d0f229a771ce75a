#include "billing/forms/condicoes.h"

#include "core/conversions.h"
#include "core/widgets/datefield.h"
#include "core/widgets/numberfield.h"

#include <QComboBox>
#include <QRadioButton>

namespace {

struct Linha {
    QComboBox *campo;
    MaskEdit *txtDe, *txtAt;
    NumberField *tdnDe, *tdnAt;
    DateField *tdbDe, *tdbAt;
};

template <class T>
T *acha(QWidget *form, const QString &nome)
{
    T *w = form->findChild<T *>(nome);
    Q_ASSERT(w);
    return w;
}

Linha linha(QWidget *form, int i)
{
    const QString n = QString::number(i);
    return {acha<QComboBox>(form, QStringLiteral("cmbCampo") + n), acha<MaskEdit>(form, QStringLiteral("txtDe") + n),
            acha<MaskEdit>(form, QStringLiteral("txtAt") + n),    acha<NumberField>(form, QStringLiteral("tdnDe") + n),
            acha<NumberField>(form, QStringLiteral("tdnAt") + n), acha<DateField>(form, QStringLiteral("tdbDe") + n),
            acha<DateField>(form, QStringLiteral("tdbAt") + n)};
}

void mostraTipo(const Linha &l, QChar tipo)
{
    const bool texto = tipo == u'S' || tipo.isNull();
    l.txtDe->setVisible(texto);
    l.txtAt->setVisible(texto);
    l.txtDe->setEnabled(!tipo.isNull());
    l.txtAt->setEnabled(!tipo.isNull());
    l.tdnDe->setVisible(tipo == u'N');
    l.tdnAt->setVisible(tipo == u'N');
    l.tdbDe->setVisible(tipo == u'D');
    l.tdbAt->setVisible(tipo == u'D');
    if (tipo != u'S') {
        l.txtDe->clear();
        l.txtAt->clear();
    }
    if (tipo != u'N') {
        l.tdnDe->clear();
        l.tdnAt->clear();
    }
    if (tipo != u'D') {
        l.tdbDe->limpa();
        l.tdbAt->limpa();
    }
}

} // namespace

CondicoesFiltro::CondicoesFiltro(QWidget *form) : form_(form)
{
    for (int i = 0; i < 3; ++i) {
        const Linha l = linha(form_, i);
        l.campo->addItem(QString());
        l.campo->addItems(camposFiltro());
        QObject::connect(l.campo, &QComboBox::activated, form_, [this, i] { campoEscolhido(i); });
        mostraTipo(l, QChar());
    }
    acha<QComboBox>(form_, QStringLiteral("cmbOrdem"))->addItems(camposFiltro());
    acha<QRadioButton>(form_, QStringLiteral("optA"))->setChecked(true);
}

void CondicoesFiltro::campoEscolhido(int i)
{
    const Linha l = linha(form_, i);
    mostraTipo(l, tipoDoCampo(l.campo->currentText()));
}

void CondicoesFiltro::mostra(const Filtro &f)
{
    for (int i = 0; i < 3; ++i) {
        const Linha l = linha(form_, i);
        const CondicaoFiltro &c = f.condicoes[size_t(i)];
        l.campo->setCurrentIndex(c.campo.isEmpty() ? 0 : l.campo->findText(c.campo));
        mostraTipo(l, c.tipo);
        if (c.tipo == u'S') {
            l.txtDe->setText(c.de);
            l.txtAt->setText(c.ate);
        } else if (c.tipo == u'N') {
            if (!c.de.isEmpty())
                l.tdnDe->setValor(c.de.toDouble());
            if (!c.ate.isEmpty())
                l.tdnAt->setValor(c.ate.toDouble());
        } else if (c.tipo == u'D') {
            l.tdbDe->setData(dateFromText(c.de));
            l.tdbAt->setData(dateFromText(c.ate));
        }
    }
    acha<QRadioButton>(form_, QStringLiteral("optA"))->setChecked(f.situacao == u'A');
    acha<QRadioButton>(form_, QStringLiteral("optB"))->setChecked(f.situacao == u'B');
    acha<QRadioButton>(form_, QStringLiteral("optT"))->setChecked(f.situacao == u'T');
    auto *ordem = acha<QComboBox>(form_, QStringLiteral("cmbOrdem"));
    const int o = ordem->findText(f.ordem);
    ordem->setCurrentIndex(o < 0 ? 0 : o);
}

Filtro CondicoesFiltro::filtro() const
{
    Filtro f;
    for (int i = 0; i < 3; ++i) {
        const Linha l = linha(form_, i);
        CondicaoFiltro &c = f.condicoes[size_t(i)];
        c.campo = l.campo->currentText();
        c.tipo = tipoDoCampo(c.campo);
        if (c.tipo == u'S') {
            c.de = l.txtDe->text();
            c.ate = l.txtAt->text();
        } else if (c.tipo == u'N') {
            c.de = l.tdnDe->text().isEmpty() ? QString() : l.tdnDe->valorSql();
            c.ate = l.tdnAt->text().isEmpty() ? QString() : l.tdnAt->valorSql();
        } else if (c.tipo == u'D') {
            c.de = l.tdbDe->textoMascarado();
            c.ate = l.tdbAt->textoMascarado();
        }
    }
    const bool b = acha<QRadioButton>(form_, QStringLiteral("optB"))->isChecked();
    const bool t = acha<QRadioButton>(form_, QStringLiteral("optT"))->isChecked();
    f.situacao = b ? QLatin1Char('B') : t ? QLatin1Char('T') : QLatin1Char('A');
    f.ordem = acha<QComboBox>(form_, QStringLiteral("cmbOrdem"))->currentText();
    return f;
}

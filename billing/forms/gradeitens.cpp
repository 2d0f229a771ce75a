#include "billing/forms/gradeitens.h"

#include "core/conversions.h"
#include "core/datastore.h"
#include "core/prompter.h"
#include "core/val.h"
#include "core/validators.h"

#include <QHeaderView>

namespace {
enum Coluna { Cod, Descricao, Compl, Ref, Valor };
constexpr int kAnterior = Qt::UserRole;  // the text the cell held before the edit

QString textoValor(double v)
{
    return formatNumber(v, QStringLiteral("###,###,##0.00"));
}
} // namespace

GradeItens::GradeItens(QWidget *parent) : QTableWidget(0, 5, parent)
{
    setHorizontalHeaderLabels({QStringLiteral("Cod."), QStringLiteral("Descrição"), QStringLiteral("Compl."),
                               QStringLiteral("Ref."), QStringLiteral("Valor")});
    horizontalHeader()->setSectionResizeMode(Descricao, QHeaderView::Stretch);
    setColumnWidth(Cod, 60);
    setColumnWidth(Compl, 140);
    setColumnWidth(Ref, 90);
    setColumnWidth(Valor, 110);
    verticalHeader()->setDefaultSectionSize(22);
    setSelectionMode(QAbstractItemView::SingleSelection);
    connect(this, &QTableWidget::itemChanged, this, &GradeItens::celulaMudou);
    limpa();
}

void GradeItens::poe(int linha, int coluna, const QString &texto)
{
    QTableWidgetItem *it = item(linha, coluna);
    if (!it) {
        it = new QTableWidgetItem;
        if (coluna == Descricao)
            it->setFlags(it->flags() & ~Qt::ItemIsEditable);
        if (coluna == Ref || coluna == Valor)
            it->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        setItem(linha, coluna, it);
    }
    it->setText(texto);
    it->setData(kAnterior, texto);
}

void GradeItens::garanteLinhaVazia()
{
    const int n = rowCount();
    if (n > 0 && item(n - 1, Cod) && item(n - 1, Cod)->text().trimmed().isEmpty())
        return;
    const bool antes = mudando_;
    mudando_ = true;
    insertRow(n);
    for (int c = Cod; c <= Valor; ++c)
        poe(n, c, QString());
    mudando_ = antes;
}

void GradeItens::limpa()
{
    mudando_ = true;
    setRowCount(0);
    mudando_ = false;
    garanteLinhaVazia();
    emit totalMudou(total());
}

QString GradeItens::descricao(const QString &codigo) const
{
    if (!con_)
        return {};
    Recordset rs = con_->Execute(QStringLiteral("SELECT * FROM Eventos WHERE codigo = '") + codigo + QStringLiteral("'"));
    return rs.eof() ? QString() : rs[QStringLiteral("nome")].text() + QStringLiteral(" ");
}

void GradeItens::poeLinha(int linha, const LinhaGrade &l, const QString &desc)
{
    double ref = 0, valor = 0;
    numeroDaCelula(l.ref, &ref);
    numeroDaCelula(l.valor, &valor);
    poe(linha, Cod, l.cod);
    poe(linha, Descricao, desc);
    poe(linha, Compl, l.comp);
    poe(linha, Ref, formatNumber(ref, QStringLiteral("###0.0000")));
    poe(linha, Valor, textoValor(valor));
}

void GradeItens::mostra(const std::vector<LinhaGrade> &linhas)
{
    mudando_ = true;
    setRowCount(0);
    for (const LinhaGrade &l : linhas) {
        const int r = rowCount();
        insertRow(r);
        poeLinha(r, l, descricao(l.cod));
    }
    mudando_ = false;
    if (rowCount() < kSlotsRecibo)
        garanteLinhaVazia();
    emit totalMudou(total());
}

std::vector<LinhaGrade> GradeItens::linhas() const
{
    std::vector<LinhaGrade> v;
    for (int r = 0; r < rowCount(); ++r) {
        auto texto = [&](int c) { return item(r, c) ? item(r, c)->text() : QString(); };
        if (texto(Cod).trimmed().isEmpty() && texto(Valor).trimmed().isEmpty())
            continue;
        v.push_back({texto(Cod), texto(Compl), texto(Ref).trimmed().isEmpty() ? QStringLiteral(" ") : texto(Ref),
                     texto(Valor)});
    }
    return v;
}

void GradeItens::ajusta()
{
    std::vector<LinhaGrade> ficam;
    for (const ItemRecibo &i : ajustaGrade(linhas()))
        ficam.push_back({i.item, i.comp, doubleText(i.refer), moneyText(i.valor)});
    mostra(ficam);
}

Money GradeItens::total() const
{
    Money t;
    for (int r = 0; r < rowCount(); ++r) {
        double v = 0;
        if (item(r, Valor) && numeroDaCelula(item(r, Valor)->text(), &v))
            t += Money::fromDouble(v);
    }
    return t;
}

void GradeItens::celulaMudou(QTableWidgetItem *it)
{
    if (mudando_ || !it)
        return;
    mudando_ = true;
    const int r = it->row(), c = it->column();
    const QString anterior = it->data(kAnterior).toString();
    const QString texto = it->text().trimmed();
    auto volta = [&] { it->setText(anterior); };
    if (c == Cod) {
        if (val(texto) == 0) {
            if (texto.isEmpty() && anterior.isEmpty())
                emit itensTerminados();
            else
                volta();
        } else if (r >= kSlotsRecibo) {
            MsgBox(QStringLiteral("Você não pode gravar mais de 10 itens... Grave, cancele ou tente ajustar !"),
                   vbExclamation, QStringLiteral("Atenção..."));
            volta();
        } else {
            const QString codigo = ZeroEsq(QString::number(qint64(val(texto))), 3);
            Recordset ev;
            if (con_)
                ev = con_->Execute(QStringLiteral("SELECT * FROM eventos WHERE codigo = '") + codigo + QStringLiteral("'"));
            if (!con_ || ev.eof()) {
                volta();
            } else {
                poe(r, Cod, codigo);
                poe(r, Descricao, ev[QStringLiteral("nome")].text() + QStringLiteral(" "));
                mudando_ = false;
                garanteLinhaVazia();
                mudando_ = true;
            }
        }
    } else if (c == Ref || c == Valor) {
        double v = 0;
        if (!texto.isEmpty() && !numeroDaCelula(texto, &v)) {
            volta();
            MsgBox(kValorInvalido, vbExclamation, QStringLiteral("Atenção..."));
        } else {
            poe(r, c, texto.isEmpty() ? QString()
                                      : (c == Ref ? formatNumber(v, QStringLiteral("###0.0000")) : textoValor(v)));
            const QString codigo = item(r, Cod) ? item(r, Cod)->text() : QString();
            if (c == Ref && v > 0 && con_ && !codigo.isEmpty()) {
                Recordset ev = con_->Execute(QStringLiteral("SELECT * FROM eventos WHERE codigo = '") + codigo
                                             + QStringLiteral("'"));
                const double unitario = ev.eof() ? 0 : ev[QStringLiteral("Valor")].toDouble();
                if (unitario > 0) {
                    const Money valor = valorComReferencia(v, Money::fromDouble(unitario));
                    poe(r, Valor, textoValor(valor.toDouble()));
                }
            }
        }
    } else {
        it->setData(kAnterior, it->text());
    }
    mudando_ = false;
    emit totalMudou(total());
}

#include "accounting/forms/gradeplano.h"

#include "accounting/lancamentos.h"
#include "core/conversions.h"
#include "core/prompter.h"

#include <QHeaderView>
#include <QTableWidget>

namespace {
constexpr int kSint = 4, kValor = 5;
const QString kPicture = QStringLiteral("#,##0.00");

QTableWidgetItem *celula(const QString &texto, bool editavel = false)
{
    auto *item = new QTableWidgetItem(texto);
    item->setFlags(editavel ? Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsEditable
                            : Qt::ItemIsEnabled | Qt::ItemIsSelectable);
    return item;
}

void poeValor(QTableWidget &grade, int linha, double v)
{
    QTableWidgetItem *item = grade.item(linha, kValor);
    const QSignalBlocker calado(&grade);
    item->setData(Qt::UserRole, v);
    item->setText(formatNumber(v, kPicture));
}
}

namespace gradeplano {

void prepara(QTableWidget &grade, const QString &tituloValor, std::function<void()> mudou)
{
    grade.setColumnCount(6);
    grade.setHorizontalHeaderLabels({QStringLiteral("Código"), QStringLiteral("Descrição"), QStringLiteral("Tipo"),
                                     QStringLiteral("Classe"), QStringLiteral("Sint"), tituloValor});
    grade.verticalHeader()->hide();
    grade.verticalHeader()->setDefaultSectionSize(22);
    grade.setWordWrap(false);
    QHeaderView *h = grade.horizontalHeader();
    h->setSectionResizeMode(QHeaderView::Fixed);
    h->setSectionResizeMode(1, QHeaderView::Stretch);
    grade.setColumnWidth(0, 70);
    for (int c = 2; c <= kSint; ++c)
        grade.setColumnWidth(c, 50);
    grade.setColumnWidth(kValor, 130);
    // The description needs room of its own: the forms open at their layout's
    // size, which the fixed columns alone would fill.
    grade.setMinimumWidth(640);
    grade.setSelectionBehavior(QAbstractItemView::SelectItems);
    grade.setSelectionMode(QAbstractItemView::SingleSelection);
    grade.setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed | QAbstractItemView::AnyKeyPressed);
    QObject::connect(&grade, &QTableWidget::itemChanged, &grade, [&grade, mudou](QTableWidgetItem *item) {
        if (item->column() != kValor)
            return;
        double v = 0;
        if (!valorDigitado(item->text(), v)) {
            MsgBox(QStringLiteral("Valor inválido, digite o valor como 1.234,56 !"), vbExclamation, QStringLiteral("Atenção..."));
            v = item->data(Qt::UserRole).toDouble();
        }
        poeValor(grade, item->row(), v);
        if (mudou)
            mudou();
    });
}

void enche(QTableWidget &grade, Connection &cn, const QString &coluna)
{
    const QSignalBlocker calado(&grade);
    const int total = int(cn.Execute(QStringLiteral("SELECT Count(codigo) As I FROM plano"))[QStringLiteral("I")].toInt());
    grade.setRowCount(0);
    grade.setRowCount(total);
    int linha = 0;
    for (Recordset rs = cn.Execute(QStringLiteral("SELECT codigo,nome,tipo,classe,sintetico,") + coluna
                                   + QStringLiteral(" FROM plano ORDER BY codigo"));
         !rs.eof() && linha < total; rs.moveNext(), ++linha) {
        const bool sintetico = rs[QStringLiteral("sintetico")].toBool();
        grade.setItem(linha, 0, celula(rs[QStringLiteral("codigo")].text().trimmed()));
        grade.setItem(linha, 1, celula(rs[QStringLiteral("nome")].text()));
        grade.setItem(linha, 2, celula(rs[QStringLiteral("tipo")].text()));
        grade.setItem(linha, 3, celula(rs[QStringLiteral("classe")].text()));
        QTableWidgetItem *sint = celula(sintetico ? QStringLiteral("Sim") : QString());
        sint->setData(Qt::UserRole, sintetico ? QStringLiteral("True") : QStringLiteral("False"));
        grade.setItem(linha, kSint, sint);
        QTableWidgetItem *valor = celula(QString(), !sintetico);
        valor->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        grade.setItem(linha, kValor, valor);
        poeValor(grade, linha, rs[coluna].toDouble());
    }
    grade.setRowCount(linha);
}

void somaSinteticas(QTableWidget &grade)
{
    const int n = grade.rowCount();
    int r = 0;
    while (r < n) {
        if (grade.item(r, kSint)->data(Qt::UserRole).toString() != QLatin1String("True")) {
            ++r;
            continue;
        }
        const int sintetica = r++;
        float total = 0;
        for (; r < n && grade.item(r, kSint)->data(Qt::UserRole).toString() == QLatin1String("False"); ++r)
            total += float(valor(grade, r));
        poeValor(grade, sintetica, double(total));
    }
}

int linhas(const QTableWidget &grade) { return grade.rowCount(); }
QString codigo(const QTableWidget &grade, int linha) { return grade.item(linha, 0)->text(); }
double valor(const QTableWidget &grade, int linha) { return grade.item(linha, kValor)->data(Qt::UserRole).toDouble(); }
QString valorSql(const QTableWidget &grade, int linha) { return QString::number(valor(grade, linha), 'f', 2); }

}

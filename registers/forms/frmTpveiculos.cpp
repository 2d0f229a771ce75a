#include "registers/forms/frmTpveiculos.h"

#include "ui_frmTpveiculos.h"

const Registro &frmTpveiculos::descricao()
{
    static const Registro r{
        .form = QStringLiteral("frmTpveiculos"),
        .busca = QStringLiteral("SELECT * FROM Tpveiculos Where codgrupo = '{codigo}'"),
        .existe = QStringLiteral("SELECT codgrupo FROM Tpveiculos Where codgrupo = '{codigo}'"),
        .contagem = QStringLiteral("SELECT Count(codgrupo) As I FROM Tpveiculos"),
        .lista = QStringLiteral("SELECT * FROM Tpveiculos ORDER BY codgrupo"),
        .insere = QStringLiteral("INSERT INTO Tpveiculos(codgrupo,Grupo,Descri) VALUES('{codigo}',{grupo},\"{txtDescri}\")"),
        .altera = QStringLiteral("Update Tpveiculos Set Descri = \"{txtDescri}\" Where codgrupo = '{codigo}'"),
        .apaga = QStringLiteral("DELETE FROM Tpveiculos WHERE codgrupo = '{codigo}'"),
        .campos = {{QStringLiteral("txtDescri"), QStringLiteral("descri")}},
        .calculados = {QStringLiteral("grupo")},
        .obrigatorios = {{QStringLiteral("txtDescri"), QStringLiteral("O Campo Descrição é Obrigatório !")}},
        .colunasGrade = {QStringLiteral("codgrupo"), QStringLiteral("descri"), QStringLiteral("grupo")},
        .titulosGrade = {QStringLiteral("Código"), QStringLiteral("Descrição"), QStringLiteral("Tipo")},
        .relatorio = {QStringLiteral("SELECT codgrupo,descri,grupo FROM Tpveiculos ORDER BY codgrupo"),
                      {QStringLiteral("codgrupo"), QStringLiteral("descri"), QStringLiteral("grupo")},
                      QStringLiteral("RTVec.rpt"), QStringLiteral("Marcas/Modelos Veículos")},
    };
    return r;
}

frmTpveiculos::frmTpveiculos(QWidget *parent) : RecordForm(descricao(), parent)
{
    Ui::frmTpveiculos().setupUi(this);
    carrega();
}

QString frmTpveiculos::normalizaCodigo(const QString &masked) const { return normalizaGrupo(masked); }

void frmTpveiculos::valoresExtras(QHash<QString, QString> &valores) const
{
    valores.insert(QStringLiteral("grupo"), valores.value(QStringLiteral("codigo")).size() == 2 ? QStringLiteral("True")
                                                                                              : QStringLiteral("False"));
}

QStringList frmTpveiculos::linhaGrade(const Recordset &rs) const
{
    QStringList cells = RecordForm::linhaGrade(rs);
    cells[2] = rs[QStringLiteral("grupo")].toBool() ? QStringLiteral("Marca") : QStringLiteral("Modelo");
    return cells;
}

#include "registers/forms/frmBlocos.h"

#include "ui_frmBlocos.h"

const Registro &frmBlocos::descricao()
{
    static const Registro r{
        .form = QStringLiteral("frmBlocos"),
        .busca = QStringLiteral("SELECT * FROM Grupos Where codgrupo = '{codigo}'"),
        .existe = QStringLiteral("SELECT codgrupo FROM Grupos Where codgrupo = '{codigo}'"),
        .contagem = QStringLiteral("SELECT Count(codgrupo) As I FROM Grupos"),
        .lista = QStringLiteral("SELECT * FROM grupos ORDER BY codgrupo"),
        .insere = QStringLiteral("INSERT INTO Grupos(codgrupo,Grupo,Descri) VALUES('{codigo}',{grupo},'{txtDescri}')"),
        .altera = QStringLiteral("Update Grupos Set Descri = '{txtDescri}' Where codgrupo = '{codigo}'"),
        .apaga = QStringLiteral("DELETE * FROM Grupos WHERE codgrupo = '{codigo}'"),
        .campos = {{QStringLiteral("txtDescri"), QStringLiteral("descri")}},
        .calculados = {QStringLiteral("grupo")},
        .obrigatorios = {{QStringLiteral("txtDescri"), QStringLiteral("O Campo Descrição é Obrigatório !")}},
        .colunasGrade = {QStringLiteral("codgrupo"), QStringLiteral("descri"), QStringLiteral("grupo")},
        .titulosGrade = {QStringLiteral("Código"), QStringLiteral("Descrição"), QStringLiteral("Tipo")},
        .relatorio = {QStringLiteral("SELECT codgrupo,descri FROM Grupos"),
                      {QStringLiteral("codgrupo"), QStringLiteral("descri")}, QStringLiteral("RBloc.rpt"),
                      QStringLiteral("Relação de Blocos")},
    };
    return r;
}

frmBlocos::frmBlocos(QWidget *parent) : RecordForm(descricao(), parent)
{
    Ui::frmBlocos().setupUi(this);
    carrega();
}

QString frmBlocos::normalizaCodigo(const QString &masked) const { return normalizaGrupo(masked); }

void frmBlocos::valoresExtras(QHash<QString, QString> &valores) const
{
    // A code of two digits is a block, of four a subgroup.
    valores.insert(QStringLiteral("grupo"), valores.value(QStringLiteral("codigo")).size() == 2 ? QStringLiteral("True")
                                                                                              : QStringLiteral("False"));
}

QStringList frmBlocos::linhaGrade(const Recordset &rs) const
{
    QStringList cells = RecordForm::linhaGrade(rs);
    cells[2] = rs[QStringLiteral("grupo")].toBool() ? QStringLiteral("Bloco") : QStringLiteral("Subgrupo");
    return cells;
}

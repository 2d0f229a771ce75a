#include "registers/forms/frmCpj.h"

#include "core/anotaerro.h"
#include "core/conversions.h"
#include "core/prompter.h"
#include "core/session.h"
#include "core/val.h"
#include "core/widgets/datefield.h"
#include "core/widgets/keyboard.h"
#include "core/widgets/maskedit.h"
#include "reporting/imprime.h"

#include <QFocusEvent>
#include <QFrame>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QVBoxLayout>

namespace {
QLineEdit *texto(QWidget *parent, const QString &name, int largura, int caracteres = 0)
{
    auto *e = new QLineEdit(parent);
    e->setObjectName(name);
    e->setMaxLength(largura);
    if (caracteres > 0)
        e->setFixedWidth(e->fontMetrics().horizontalAdvance(QString(caracteres, u'0')) + 14);
    return e;
}

MaskEdit *mascarado(QWidget *parent, const char *name, const QString &mascara)
{
    auto *m = new MaskEdit(parent);
    m->setObjectName(QString::fromLatin1(name));
    m->setMascara(mascara);
    m->setFixedWidth(m->fontMetrics().horizontalAdvance(QString(mascara.size() + 1, u'0')) + 14);
    return m;
}

QLabel *rotulo(QWidget *parent, const QString &t)
{
    auto *l = new QLabel(t, parent);
    l->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return l;
}

QString aspas(const QString &s) { return u'"' + s + u'"'; }

const char *const kTipos[4] = {"Imobiliária", "Financeira", "Tercerizadora", "Outros"};
}

frmCpj::frmCpj(QWidget *parent) : RecordForm(parent)
{
    setObjectName(QStringLiteral("frmCpj"));
    setWindowTitle(QStringLiteral("Cadastro de Pessoa Jurídica"));
    montaTela(QStringLiteral("Código:"), QString(), 4);

    QWidget *f = fraDados_;
    txtNome_ = texto(f, QStringLiteral("txtNome"), 50);
    txtEndereco_ = texto(f, QStringLiteral("txtEndereco"), 50);
    txtNumero_ = texto(f, QStringLiteral("txtNumero"), 6, 7);
    txtComplemento_ = texto(f, QStringLiteral("txtComplemento"), 20, 16);
    txtBairro_ = texto(f, QStringLiteral("txtBairro"), 30);
    txtCidade_ = texto(f, QStringLiteral("txtCidade"), 30);
    txtUf_ = texto(f, QStringLiteral("txtUf"), 2, 3);
    mskCep_ = mascarado(f, "mskCep", QStringLiteral("#####-###"));
    mskCnpj_ = mascarado(f, "mskCnpj", QStringLiteral("##.###.###/####-##"));
    mskCpf_ = mascarado(f, "mskCpf", QStringLiteral("###.###.###-##"));
    txtInscest_ = texto(f, QStringLiteral("txtInscest"), 20, 16);
    txtDdd_ = texto(f, QStringLiteral("txtDdd"), 4, 4);
    for (int n = 0; n < 3; ++n)
        txtFone_[n] = texto(f, QStringLiteral("txtFone%1").arg(n), 15, 11);
    txtFax_ = texto(f, QStringLiteral("txtFax"), 15, 11);
    txtEmail_ = texto(f, QStringLiteral("txtEmail"), 50);
    txtHomepage_ = texto(f, QStringLiteral("txtHomepage"), 50);
    txtObs_ = new QPlainTextEdit(f);
    txtObs_->setObjectName(QStringLiteral("txtObs"));
    txtObs_->setFixedHeight(txtObs_->fontMetrics().height() * 2 + 12);
    txtObs_->setTabChangesFocus(true);

    auto *fraTipo = new QGroupBox(QStringLiteral("Tipo"), f);
    fraTipo->setObjectName(QStringLiteral("fraTipo"));
    auto *lt = new QHBoxLayout(fraTipo);
    for (int n = 0; n < 4; ++n) {
        optTipo_[n] = new QRadioButton(QString::fromUtf8(kTipos[n]), fraTipo);
        optTipo_[n]->setObjectName(QStringLiteral("optTipo%1").arg(n));
        lt->addWidget(optTipo_[n]);
    }
    lt->addStretch();

    auto *fraContatos = new QGroupBox(QStringLiteral("Contatos"), f);
    fraContatos->setObjectName(QStringLiteral("fraContatos"));
    auto *lc = new QGridLayout(fraContatos);
    lc->addWidget(new QLabel(QStringLiteral("Nome"), fraContatos), 0, 0);
    lc->addWidget(new QLabel(QStringLiteral("Setor"), fraContatos), 0, 1);
    lc->addWidget(new QLabel(QStringLiteral("Nascimento"), fraContatos), 0, 2);
    for (int n = 0; n < 3; ++n) {
        txtContato_[n] = texto(fraContatos, QStringLiteral("txtContato%1").arg(n), 40);
        txtSetor_[n] = texto(fraContatos, QStringLiteral("txtSetor%1").arg(n), 20, 18);
        mskNascto_[n] = new DateField(fraContatos);
        mskNascto_[n]->setObjectName(QStringLiteral("mskNascto%1").arg(n));
        mskNascto_[n]->setMinimo(QDate(1900, 1, 1));
        lc->addWidget(txtContato_[n], n + 1, 0);
        lc->addWidget(txtSetor_[n], n + 1, 1);
        lc->addWidget(mskNascto_[n], n + 1, 2);
    }
    lc->setColumnStretch(0, 1);

    auto *g = new QGridLayout(f);
    g->addWidget(rotulo(f, QStringLiteral("Nome:")), 0, 0);
    g->addWidget(txtNome_, 0, 1, 1, 5);
    g->addWidget(fraTipo, 1, 0, 1, 6);
    g->addWidget(rotulo(f, QStringLiteral("Endereço:")), 2, 0);
    g->addWidget(txtEndereco_, 2, 1, 1, 3);
    g->addWidget(rotulo(f, QStringLiteral("Número:")), 2, 4);
    g->addWidget(txtNumero_, 2, 5, Qt::AlignLeft);
    g->addWidget(rotulo(f, QStringLiteral("Complemento:")), 3, 0);
    g->addWidget(txtComplemento_, 3, 1, Qt::AlignLeft);
    g->addWidget(rotulo(f, QStringLiteral("Bairro:")), 3, 2);
    g->addWidget(txtBairro_, 3, 3, 1, 3);
    g->addWidget(rotulo(f, QStringLiteral("Cidade:")), 4, 0);
    g->addWidget(txtCidade_, 4, 1, 1, 3);
    g->addWidget(rotulo(f, QStringLiteral("UF:")), 4, 4);
    g->addWidget(txtUf_, 4, 5, Qt::AlignLeft);
    g->addWidget(rotulo(f, QStringLiteral("CEP:")), 5, 0);
    g->addWidget(mskCep_, 5, 1, Qt::AlignLeft);
    g->addWidget(rotulo(f, QStringLiteral("CNPJ:")), 5, 2);
    g->addWidget(mskCnpj_, 5, 3, Qt::AlignLeft);
    g->addWidget(rotulo(f, QStringLiteral("CPF:")), 6, 2);
    g->addWidget(mskCpf_, 6, 3, Qt::AlignLeft);
    g->addWidget(rotulo(f, QStringLiteral("Insc. Estadual:")), 6, 0);
    g->addWidget(txtInscest_, 6, 1, Qt::AlignLeft);
    g->addWidget(rotulo(f, QStringLiteral("DDD:")), 7, 0);
    g->addWidget(txtDdd_, 7, 1, Qt::AlignLeft);
    auto *fones = new QHBoxLayout;
    for (int n = 0; n < 3; ++n)
        fones->addWidget(txtFone_[n]);
    fones->addStretch();
    g->addWidget(rotulo(f, QStringLiteral("Telefones:")), 7, 2);
    g->addLayout(fones, 7, 3, 1, 3);
    g->addWidget(rotulo(f, QStringLiteral("Fax:")), 8, 0);
    g->addWidget(txtFax_, 8, 1, Qt::AlignLeft);
    g->addWidget(rotulo(f, QStringLiteral("E-mail:")), 8, 2);
    g->addWidget(txtEmail_, 8, 3, 1, 3);
    g->addWidget(rotulo(f, QStringLiteral("Home Page:")), 9, 2);
    g->addWidget(txtHomepage_, 9, 3, 1, 3);
    g->addWidget(fraContatos, 10, 0, 1, 6);
    g->addWidget(rotulo(f, QStringLiteral("Observações:")), 11, 0, Qt::AlignTop | Qt::AlignRight);
    g->addWidget(txtObs_, 11, 1, 1, 5);
    g->setColumnStretch(3, 1);

    aoPerderFoco(mskCep_, [this] { mskCep_LostFocus(); });
    aoPerderFoco(txtUf_, [this] { txtUf_LostFocus(); });
    aoPerderFoco(mskCnpj_, [this] { mskCnpj_LostFocus(); });
    aoPerderFoco(mskCpf_, [this] { mskCpf_LostFocus(); });
    carrega(session.conAtiva);
}

QString frmCpj::normalizaCodigo(const QString &masked) const
{
    const QString bare = masked.trimmed();
    return bare.isEmpty() ? QString() : QString::number(qint64(val(bare)));
}

QString frmCpj::sqlBusca(const QString &c) const { return QStringLiteral("SELECT * FROM PJuridica Where Codigo = ") + c; }
QString frmCpj::sqlExiste(const QString &c) const { return QStringLiteral("SELECT codigo FROM PJuridica Where Codigo = ") + c; }
// The (Nenhum) rows of code 0 belong to the combos of the units; they are never edited here.
QString frmCpj::sqlContagem() const { return QStringLiteral("SELECT Count(codigo) As I FROM PJuridica WHERE codigo > 0"); }
QString frmCpj::sqlLista() const { return QStringLiteral("SELECT * FROM PJuridica WHERE codigo > 0 ORDER BY codigo"); }

QString frmCpj::tipoMarcado() const
{
    for (int n = 0; n < 4; ++n)
        if (optTipo_[n]->isChecked())
            return QString::number(n);
    return QStringLiteral("3");
}

QList<QPair<QString, QString>> frmCpj::valores() const
{
    QList<QPair<QString, QString>> v{{QStringLiteral("Nome"), aspas(txtNome_->text())},
                                     {QStringLiteral("endereco"), aspas(txtEndereco_->text())},
                                     {QStringLiteral("bairro"), aspas(txtBairro_->text())},
                                     {QStringLiteral("cidade"), aspas(txtCidade_->text())},
                                     {QStringLiteral("uf"), aspas(txtUf_->text())},
                                     {QStringLiteral("cep"), aspas(mskCep_->textoMascarado())},
                                     {QStringLiteral("tipo"), u'\'' + tipoMarcado() + u'\''},
                                     {QStringLiteral("numero"), aspas(txtNumero_->text())},
                                     {QStringLiteral("complemento"), aspas(txtComplemento_->text())},
                                     {QStringLiteral("cnpj"), aspas(mskCnpj_->textoMascarado())},
                                     {QStringLiteral("cpf"), aspas(mskCpf_->textoMascarado())},
                                     {QStringLiteral("inscest"), aspas(txtInscest_->text())}};
    for (int n = 0; n < 3; ++n) {
        const QString d = mskNascto_[n]->dataSql();
        v.append({QStringLiteral("contato%1").arg(n), aspas(txtContato_[n]->text())});
        v.append({QStringLiteral("setor%1").arg(n), aspas(txtSetor_[n]->text())});
        v.append({QStringLiteral("nascto%1").arg(n), d == QLatin1String("Null") ? QStringLiteral("null") : d});
    }
    v.append({QStringLiteral("ddd"), aspas(txtDdd_->text())});
    for (int n = 0; n < 3; ++n)
        v.append({QStringLiteral("fone%1").arg(n), aspas(txtFone_[n]->text())});
    v.append({QStringLiteral("email"), aspas(txtEmail_->text())});
    v.append({QStringLiteral("homepage"), aspas(txtHomepage_->text())});
    v.append({QStringLiteral("fax"), aspas(txtFax_->text())});
    v.append({QStringLiteral("obs"), aspas(txtObs_->toPlainText())});
    return v;
}

QString frmCpj::sqlInsert(const QString &c) const
{
    QStringList lista{aspas(c)};
    for (const auto &[coluna, valor] : valores())
        lista << valor;
    return QStringLiteral("INSERT INTO PJuridica(codigo,Nome,endereco,bairro,")
        + QStringLiteral("cidade,uf,cep,tipo,numero,complemento,cnpj,cpf,inscest,")
        + QStringLiteral("contato0,setor0,nascto0,") + QStringLiteral("contato1,setor1,nascto1,")
        + QStringLiteral("contato2,setor2,nascto2,ddd,") + QStringLiteral("fone0,fone1,fone2,email,homepage,fax,obs)")
        + QStringLiteral(" VALUES( ") + lista.join(u',') + u')';
}

QString frmCpj::sqlUpdate(const QString &c) const
{
    QStringList sets;
    for (const auto &[coluna, valor] : valores()) {
        // An empty date is written "Nascto0 = null".
        const QString nome = coluna.startsWith(QLatin1String("nascto")) ? u'N' + coluna.mid(1) : coluna;
        sets << nome + QStringLiteral(" = ") + valor;
    }
    return QStringLiteral("Update PJuridica Set ") + sets.join(u',') + QStringLiteral(" Where codigo = ") + c;
}

QString frmCpj::sqlDelete(const QString &c) const { return QStringLiteral("DELETE * FROM PJuridica WHERE codigo = ") + c; }

void frmCpj::carregaCampos(const Recordset &rs)
{
    auto t = [&rs](const QString &c) { return rs[c].text(); };
    txtNome_->setText(t(QStringLiteral("nome")));
    txtEndereco_->setText(t(QStringLiteral("endereco")));
    txtNumero_->setText(t(QStringLiteral("numero")));
    txtComplemento_->setText(t(QStringLiteral("complemento")));
    txtBairro_->setText(t(QStringLiteral("bairro")));
    txtCidade_->setText(t(QStringLiteral("cidade")));
    txtUf_->setText(t(QStringLiteral("uf")));
    mskCep_->setText(t(QStringLiteral("cep")));
    mskCnpj_->setText(t(QStringLiteral("cnpj")));
    mskCpf_->setText(t(QStringLiteral("cpf")));
    txtInscest_->setText(t(QStringLiteral("inscest")));
    const int tipo = int(val(t(QStringLiteral("tipo"))));
    for (int n = 0; n < 4; ++n)
        optTipo_[n]->setChecked(n == tipo);
    for (int n = 0; n < 3; ++n) {
        txtContato_[n]->setText(t(QStringLiteral("contato%1").arg(n)));
        txtSetor_[n]->setText(t(QStringLiteral("setor%1").arg(n)));
        mskNascto_[n]->setData(rs[QStringLiteral("nascto%1").arg(n)].toDate());
        txtFone_[n]->setText(t(QStringLiteral("fone%1").arg(n)));
    }
    txtDdd_->setText(t(QStringLiteral("ddd")));
    txtEmail_->setText(t(QStringLiteral("email")));
    txtHomepage_->setText(t(QStringLiteral("homepage")));
    txtFax_->setText(t(QStringLiteral("fax")));
    txtObs_->setPlainText(t(QStringLiteral("obs")));
}

QString frmCpj::mensagemCodigoInvalido() const
{
    return QStringLiteral("Todo registro deve ter um código numérico válido !");
}

void frmCpj::validaCampos()
{
    if (txtNome_->text().trimmed().isEmpty())
        AnotaErro(kErroFatal, QStringLiteral("O campo Nome é obrigatório !"));
}

void frmCpj::valoresPadrao() { optTipo_[3]->setChecked(true); }

QStringList frmCpj::linhaGrade(const Recordset &rs) const
{
    const int tipo = int(val(rs[QStringLiteral("tipo")].text()));
    return {rs[QStringLiteral("codigo")].text(), rs[QStringLiteral("nome")].text(),
            tipo >= 0 && tipo < 4 ? QString::fromUtf8(kTipos[tipo]) : rs[QStringLiteral("tipo")].text()};
}

QStringList frmCpj::titulosGrade() const { return {QStringLiteral("Código"), QStringLiteral("Nome"), QStringLiteral("Tipo")}; }

QWidget *frmCpj::primeiroCampo() const { return txtNome_; }

RecordForm::Pesquisa frmCpj::pesquisa() const
{
    return {QStringLiteral("frmPesquisa"), QStringLiteral("Pesquisa de Pessoa Jurídica"), QStringLiteral("PJuridica"), 4};
}

void frmCpj::imprime(const QString &codigo)
{
    if (codigo.isEmpty())
        return;
    Recordset rs;
    Ampulheta ampulheta;
    QStringList colunas{QStringLiteral("codigo"), QStringLiteral("Nome"), QStringLiteral("endereco"),
                        QStringLiteral("bairro"), QStringLiteral("cidade"), QStringLiteral("uf"),
                        QStringLiteral("cep"), QStringLiteral("tipo"), QStringLiteral("numero"),
                        QStringLiteral("complemento"), QStringLiteral("cnpj"), QStringLiteral("cpf"),
                        QStringLiteral("inscest")};
    for (int n = 0; n < 3; ++n)
        colunas << QStringLiteral("contato%1").arg(n) << QStringLiteral("setor%1").arg(n) << QStringLiteral("nascto%1").arg(n);
    colunas << QStringLiteral("ddd") << QStringLiteral("fone0") << QStringLiteral("fone1") << QStringLiteral("fone2")
            << QStringLiteral("email") << QStringLiteral("hp") << QStringLiteral("fax") << QStringLiteral("obs");
    auto linha = [colunas](const Recordset &r) {
        QStringList l;
        for (const QString &c : colunas)
            l << r[c == QLatin1String("hp") ? QStringLiteral("homepage") : c].text();
        return l;
    };
    ImprimeRelatorio(cn_, rs, QStringLiteral("SELECT * FROM PJuridica WHERE codigo = ") + codigo, colunas,
                     QStringLiteral("CadJud.rpt"), QStringLiteral("Cadastro de Pessoa Jurídica"), {}, linha);
}

void frmCpj::mskCep_LostFocus()
{
    if (mskCep_->textoMascarado() == QLatin1String("00000-000"))
        mskCep_->clear();
}

void frmCpj::txtUf_LostFocus()
{ confereUF(txtUf_); }

void frmCpj::mskCnpj_LostFocus()
{ confereCGC(mskCnpj_); }

void frmCpj::mskCpf_LostFocus()
{ confereCPF(mskCpf_); }

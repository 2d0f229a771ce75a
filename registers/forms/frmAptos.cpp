#include "registers/forms/frmAptos.h"

#include "core/forms/formcatalog.h"
#include "core/forms/mdiHabitarium.h"
#include "core/prompter.h"
#include "core/session.h"
#include "core/transaction.h"
#include "core/val.h"
#include "core/validators.h"
#include "core/widgets/keyboard.h"
#include "core/widgets/maskedit.h"
#include "core/widgets/modal.h"
#include "reporting/junta.h"
#include "ui_frmAptos.h"

#include <QApplication>
#include <QComboBox>
#include <QDate>
#include <QDialog>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QStandardItemModel>
#include <QTabBar>
#include <QTabWidget>
#include <QTreeView>

namespace {
const QString kNenhum = QStringLiteral("(Nenhum)");
// The use of the unit, stored as the digit of its place in the list.
const char *const kUsos[] = {"Uso Próprio", "Aluguel", "Empréstimo", "Vago"};
// The bond of a resident to the unit, stored as the digit of its place.
const char *const kVinculos[] = {"Proprietário(a)", "Inquilino(a)", "Cônjuge", "Filho(a)", "Pai/Mãe", "Neto(a)", "Outros"};

QString aspas(const QString &codigo) { return u'\'' + codigo + u'\''; }

QList<Campo> camposDoCadastro()
{
    auto t = [](const char *controle, const char *coluna) { return Campo{QString::fromLatin1(controle), QString::fromLatin1(coluna)}; };
    auto m = [](const char *controle, const char *coluna) {
        return Campo{QString::fromLatin1(controle), QString::fromLatin1(coluna), Tipo::Mascara};
    };
    auto b = [](const char *controle, const char *coluna) {
        return Campo{QString::fromLatin1(controle), QString::fromLatin1(coluna), Tipo::Booleano};
    };
    // The combos store codes the form looks up (valoresExtras) and are loaded by carregaExtras.
    auto c = [](const char *controle) { return Campo{QString::fromLatin1(controle), QString(), Tipo::Combo}; };
    QList<Campo> campos{t("txtNome", "nome"), t("txtCodinterno", "codinterno"), c("cmbTipoapt"), c("cmbUso"),
                        c("cmbSituacao"), m("mskCtrPref", "nrcontpm"), b("chkSegpro", "seguropro"),
                        b("chkQuitado", "quitado"), b("chkCabina", "cabina"), b("chkAposentado", "aposentado"),
                        {QStringLiteral("tdbCrateio"), QStringLiteral("crateio"), Tipo::Numero},
                        c("cmbImobiliaria"), c("cmbFinanceira"), t("txtConjugepro", "conjugepro"),
                        t("txtNomeinq", "inquilino")};
    for (const char *s : {"pro", "inq"}) {
        const QString suf = QString::fromLatin1(s);
        for (const char *f : {"Endereco", "Numero", "Complemento", "Bairro", "Cidade", "Uf"})
            campos << Campo{QStringLiteral("txt") + QString::fromLatin1(f) + suf, QString::fromLatin1(f).toLower() + suf};
        for (const char *f : {"Cep", "Cpf", "Rg", "Cnpj"})
            campos << Campo{QStringLiteral("msk") + QString::fromLatin1(f) + suf, QString::fromLatin1(f).toLower() + suf,
                            Tipo::Mascara};
        campos << Campo{QStringLiteral("txtMail") + suf, QStringLiteral("email") + suf};
    }
    campos << t("txtDddapto", "dddap") << t("txtfoneapto", "foneap") << t("txtDddFonepro", "dddpro")
           << t("txtFonepro", "fonepro") << t("txtDddInq", "dddinq") << t("txtfoneinq", "foneinq")
           << t("txtDddComl", "dddcoml") << t("txtFonecoml", "fonecoml") << t("txtTipCob", "tipcob")
           << t("txtTipbolbco", "tipbolbco") << t("txtObserv", "observ");
    return campos;
}

// The columns of the card: the unit's, the texts of its lists, and the resident of the row.
QStringList colunasDoCartao()
{
    return {QStringLiteral("codigo"), QStringLiteral("nome"), QStringLiteral("codinterno"), QStringLiteral("tapto"),
            QStringLiteral("tuso"), QStringLiteral("situ"), QStringLiteral("nrcontpm"), QStringLiteral("seguropro"),
            QStringLiteral("quitado"), QStringLiteral("cabina"), QStringLiteral("aposentado"), QStringLiteral("crateio"),
            QStringLiteral("codimob"), QStringLiteral("codfin"), QStringLiteral("conjugepro"), QStringLiteral("enderecopro"),
            QStringLiteral("numeropro"), QStringLiteral("complementopro"), QStringLiteral("bairropro"),
            QStringLiteral("cidadepro"), QStringLiteral("ufpro"), QStringLiteral("ceppro"), QStringLiteral("cpfpro"),
            QStringLiteral("rgpro"), QStringLiteral("cnpjpro"), QStringLiteral("emailpro"), QStringLiteral("inquilino"),
            QStringLiteral("enderecoinq"), QStringLiteral("numeroinq"), QStringLiteral("complementoinq"),
            QStringLiteral("bairroinq"), QStringLiteral("cidadeinq"), QStringLiteral("ufinq"), QStringLiteral("cepinq"),
            QStringLiteral("cpfinq"), QStringLiteral("rginq"), QStringLiteral("cnpjinq"), QStringLiteral("emailinq"),
            QStringLiteral("dddap"), QStringLiteral("foneap"), QStringLiteral("dddpro"), QStringLiteral("fonepro"),
            QStringLiteral("dddinq"), QStringLiteral("foneinq"), QStringLiteral("dddcoml"), QStringLiteral("fonecoml"),
            QStringLiteral("tipcob"), QStringLiteral("nemis"), QStringLiteral("demis"), QStringLiteral("nrecibo"),
            QStringLiteral("tipbolbco"), QStringLiteral("observ"),
            // the lists' texts
            QStringLiteral("descritipo"), QStringLiteral("descriuso"), QStringLiteral("descrisitu"),
            // the resident of the row (none: empty)
            QStringLiteral("codap"), QStringLiteral("morador"), QStringLiteral("vinculo"), QStringLiteral("nascto")};
}

const QStringList kColunasVeiculos{QStringLiteral("apto"), QStringLiteral("chapa"), QStringLiteral("ano"),
                                   QStringLiteral("cor"), QStringLiteral("marca"), QStringLiteral("modelo"),
                                   QStringLiteral("obs"), QStringLiteral("proprietario")};

// The text of a digit of a list; what is not one of its digits prints as it stands.
QString textoDaLista(const char *const *lista, int tamanho, const QString &digito)
{
    const QString d = digito.trimmed();
    const int n = d.size() == 1 ? int(val(d)) : 0;
    return n >= 1 && n <= tamanho ? QString::fromUtf8(lista[n - 1]) : d;
}

// A masked field left empty is stored with its prompts; on paper it is blank.
QString semPrompts(const QString &texto)
{
    for (const QChar c : texto)
        if (c != u'_' && c != u'.' && c != u'-' && c != u'/' && c != u' ')
            return texto;
    return QString();
}

QString nomeDaJuncao(Connection &cn, const QString &coluna, const QString &codigo)
{
    Recordset rs = cn.Execute(QStringLiteral("SELECT PJuridica.Nome FROM PJuridica INNER JOIN Aptos ON PJuridica.Codauto = Aptos.")
                              + coluna + QStringLiteral(" Where Aptos.Codigo = '") + codigo + u'\'');
    return rs.eof() ? kNenhum : rs[QStringLiteral("Nome")].text();
}

// Tab on the last field of a page of the tab strip goes to the first field
// of the next page; Shift+Tab on a page's first field, back to the last of
// the page before. Enter arrives here as a Tab.
class PassaPagina : public QObject {
public:
    PassaPagina(QTabWidget *strip, int pagina, QWidget *destino, bool avanca, QObject *parent)
        : QObject(parent), strip_(strip), pagina_(pagina), destino_(destino), avanca_(avanca) {}

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() != QEvent::KeyPress)
            return false;
        auto *key = static_cast<QKeyEvent *>(event);
        const bool tab = key->key() == Qt::Key_Tab && !(key->modifiers() & Qt::ShiftModifier);
        const bool volta = key->key() == Qt::Key_Backtab || (key->key() == Qt::Key_Tab && (key->modifiers() & Qt::ShiftModifier));
        if ((avanca_ && !tab) || (!avanca_ && !volta))
            return false;
        strip_->setCurrentIndex(pagina_);
        destino_->setFocus(Qt::TabFocusReason);
        return true;
    }

private:
    QTabWidget *strip_;
    int pagina_;
    QWidget *destino_;
    bool avanca_;
};
}

const Registro &frmAptos::descricao()
{
    static const Registro r{
        .form = QStringLiteral("frmAptos"),
        .chave = Chave::Texto,
        .largura = 6,
        .busca = QStringLiteral("SELECT * FROM Aptos Where Codigo = '{codigo}'"),
        .existe = QStringLiteral("SELECT * FROM Aptos Where Codigo = '{codigo}'"),
        .contagem = QStringLiteral("SELECT Count(codigo) As I FROM Aptos"),
        .lista = QStringLiteral("SELECT * FROM Aptos ORDER BY codigo"),
        // Texts that may hold an apostrophe go in double quotes; codes, masks and
        // telephones in apostrophes. The emission's counters start as literals.
        .insere = QStringLiteral(
            "INSERT INTO Aptos(codigo,nome,codinterno,tapto,tuso,situ,nrcontpm,seguropro,quitado,cabina,aposentado,"
            "crateio,codimob,codfin,conjugepro,enderecopro,numeropro,complementopro,bairropro,cidadepro,ufpro,ceppro,"
            "cpfpro,rgpro,cnpjpro,emailpro,inquilino,enderecoinq,numeroinq,complementoinq,bairroinq,cidadeinq,ufinq,"
            "cepinq,cpfinq,rginq,cnpjinq,emailinq,dddap,foneap,dddpro,fonepro,dddinq,foneinq,dddcoml,fonecoml,"
            "tipcob,nemis,demis,nrecibo,tipbolbco,observ)"
            " VALUES('{codigo}',\"{txtNome}\",\"{txtCodinterno}\",'{tapto}','{tuso}','{situ}','{mskCtrPref}',"
            "{chkSegpro},{chkQuitado},{chkCabina},{chkAposentado},'{tdbCrateio}','{codimob}','{codfin}',"
            "\"{txtConjugepro}\",\"{txtEnderecopro}\",\"{txtNumeropro}\",\"{txtComplementopro}\",\"{txtBairropro}\","
            "\"{txtCidadepro}\",'{txtUfpro}','{mskCeppro}','{mskCpfpro}','{mskRgpro}','{mskCnpjpro}',\"{txtMailpro}\","
            "\"{txtNomeinq}\",\"{txtEnderecoinq}\",\"{txtNumeroinq}\",\"{txtComplementoinq}\",\"{txtBairroinq}\","
            "\"{txtCidadeinq}\",'{txtUfinq}','{mskCepinq}','{mskCpfinq}','{mskRginq}','{mskCnpjinq}',\"{txtMailinq}\","
            "'{txtDddapto}','{txtfoneapto}','{txtDddFonepro}','{txtFonepro}','{txtDddInq}','{txtfoneinq}',"
            "'{txtDddComl}','{txtFonecoml}','{txtTipCob}','0','01/01/2003','000000','{txtTipbolbco}',\"{txtObserv}\")"),
        // nemis, demis and nrecibo belong to the emission: an edit never writes them.
        .altera = QStringLiteral(
            "Update Aptos Set nome = \"{txtNome}\",codinterno = \"{txtCodinterno}\",tapto = '{tapto}',tuso = '{tuso}',"
            "situ = '{situ}',nrcontpm = '{mskCtrPref}',seguropro = {chkSegpro},quitado = {chkQuitado},"
            "cabina = {chkCabina},aposentado = {chkAposentado},crateio = '{tdbCrateio}',codimob = '{codimob}',"
            "codfin = '{codfin}',conjugepro = \"{txtConjugepro}\",enderecopro = \"{txtEnderecopro}\","
            "numeropro = \"{txtNumeropro}\",complementopro = \"{txtComplementopro}\",bairropro = \"{txtBairropro}\","
            "cidadepro = \"{txtCidadepro}\",ufpro = '{txtUfpro}',ceppro = '{mskCeppro}',cpfpro = '{mskCpfpro}',"
            "rgpro = '{mskRgpro}',cnpjpro = '{mskCnpjpro}',emailpro = \"{txtMailpro}\",inquilino = \"{txtNomeinq}\","
            "enderecoinq = \"{txtEnderecoinq}\",numeroinq = \"{txtNumeroinq}\",complementoinq = \"{txtComplementoinq}\","
            "bairroinq = \"{txtBairroinq}\",cidadeinq = \"{txtCidadeinq}\",ufinq = '{txtUfinq}',cepinq = '{mskCepinq}',"
            "cpfinq = '{mskCpfinq}',rginq = '{mskRginq}',cnpjinq = '{mskCnpjinq}',emailinq = \"{txtMailinq}\","
            "dddap = '{txtDddapto}',foneap = '{txtfoneapto}',dddpro = '{txtDddFonepro}',fonepro = '{txtFonepro}',"
            "dddinq = '{txtDddInq}',foneinq = '{txtfoneinq}',dddcoml = '{txtDddComl}',fonecoml = '{txtFonecoml}',"
            "tipcob = '{txtTipCob}',tipbolbco = '{txtTipbolbco}',observ = \"{txtObserv}\" Where codigo = '{codigo}'"),
        .apaga = QStringLiteral("DELETE FROM Aptos WHERE codigo = '{codigo}'"),
        .campos = camposDoCadastro(),
        .calculados = {QStringLiteral("tapto"), QStringLiteral("tuso"), QStringLiteral("situ"), QStringLiteral("codimob"),
                       QStringLiteral("codfin")},
        .obrigatorios = {{QStringLiteral("txtNome"), QStringLiteral("O Campo Nome é Obrigatório !")},
                         {QStringLiteral("cmbTipoapt"), QStringLiteral("O Campo Tipo do Imóvel é Obrigatório !")},
                         {QStringLiteral("cmbUso"), QStringLiteral("O Campo Uso do Imóvel é Obrigatório !")},
                         {QStringLiteral("cmbSituacao"), QStringLiteral("O Campo Situação é Obrigatório !")}},
        .colunasGrade = {QStringLiteral("codigo"), QStringLiteral("codinterno"), QStringLiteral("nome"),
                         QStringLiteral("inquilino")},
        .titulosGrade = {QStringLiteral("Código"), QStringLiteral("Cód.Interno"), QStringLiteral("Proprietário"),
                         QStringLiteral("Inquilino")},
        .relatorio = {QStringLiteral("SELECT * FROM Aptos WHERE codigo = '{chave}'"), colunasDoCartao(),
                      QStringLiteral("CadAp.rpt"), QStringLiteral("Cadastro de Apartamento")},
        .pesquisa = {QStringLiteral("frmPesqap"), QStringLiteral("Pesquisa de Apartamentos"), QStringLiteral("Aptos"), 6},
        .codigoInvalido = QStringLiteral("Todo registro deve ter um código numérico válido !"),
    };
    return r;
}

frmAptos::frmAptos(QWidget *parent) : RecordForm(descricao(), parent)
{
    Ui::frmAptos ui;
    ui.setupUi(this);
    cmbTipoapt_ = ui.cmbTipoapt;
    cmbUso_ = ui.cmbUso;
    cmbSituacao_ = ui.cmbSituacao;
    cmbImobiliaria_ = ui.cmbImobiliaria;
    cmbFinanceira_ = ui.cmbFinanceira;
    ssfones_ = ui.ssfones;

    auto soDigitos = [](QLineEdit *campo) {
        campo->setValidator(new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9]*")), campo));
    };
    for (QLineEdit *campo : {ui.txtTipCob, ui.txtDddapto, ui.txtDddFonepro, ui.txtDddInq, ui.txtDddComl})
        soDigitos(campo);

    // The address checks of owner and tenant.
    for (auto [uf, cep, cpf, cnpj] : {std::tuple{ui.txtUfpro, ui.mskCeppro, ui.mskCpfpro, ui.mskCnpjpro},
                                      std::tuple{ui.txtUfinq, ui.mskCepinq, ui.mskCpfinq, ui.mskCnpjinq}}) {
        aoPerderFoco(uf, [uf] {
            if (uf->text().trimmed().isEmpty() || ValidaUF(uf->text()))
                return;
            MsgBox(QStringLiteral("Sigla do Estado Inválido, digite corretamente ou deixe o campo vazio"), vbCritical,
                   QStringLiteral("Erro"));
            uf->clear();
        });
        aoPerderFoco(cep, [cep] {
            if (cep->textoMascarado() == QLatin1String("00000-000"))
                cep->clear();
        });
        aoPerderFoco(cpf, [cpf] { confereCPF(cpf); });
        aoPerderFoco(cnpj, [cnpj] { confereCGC(cnpj); });
    }

    // Tabbing walks the pages of the tab strip; the strip itself is no stop (a click opens a page).
    ssfones_->setFocusPolicy(Qt::NoFocus);
    ssfones_->tabBar()->setFocusPolicy(Qt::NoFocus);
    const QList<QPair<QWidget *, QWidget *>> paginas{{ui.txtConjugepro, ui.txtMailpro},
                                                     {ui.txtNomeinq, ui.txtMailinq},
                                                     {ui.txtDddapto, ui.txtFonecoml},
                                                     {ui.tdbCrateio, ui.txtObserv}};
    for (int p = 0; p + 1 < paginas.size(); ++p) {
        paginas[p].second->installEventFilter(new PassaPagina(ssfones_, p + 1, paginas[p + 1].first, true, this));
        paginas[p + 1].first->installEventFilter(new PassaPagina(ssfones_, p, paginas[p].second, false, this));
    }

    // The two firms' combos show name and code.
    for (QComboBox *combo : {cmbImobiliaria_, cmbFinanceira_}) {
        auto *view = new QTreeView(combo);
        view->setRootIsDecorated(false);
        view->setItemsExpandable(false);
        view->header()->setStretchLastSection(false);
        combo->setView(view);
        auto *model = new QStandardItemModel(0, 2, combo);
        model->setHorizontalHeaderLabels({QStringLiteral("Nome"), QStringLiteral("Cód.")});
        combo->setModel(model);
    }

    connect(ui.cmdMoradores, &QPushButton::clicked, this, &frmAptos::cmdMoradores_Click);
    carrega();
    // The delete is the cascade, in one step.
    disconnect(cmdApagar_, &QPushButton::clicked, this, nullptr);
    connect(cmdApagar_, &QPushButton::clicked, this, &frmAptos::cmdApagar_Click);
    encheCombos();
}

void frmAptos::encheCombos()
{
    Recordset tipos = cn_.Execute(QStringLiteral("SELECT descri FROM TpAp"));
    if (tipos.eof())
        MsgBox(QStringLiteral("A Tabela de Tipos de Apartamentos está Vazia, Cadastre !"), vbExclamation,
               QStringLiteral("Atenção..."));
    for (; !tipos.eof(); tipos.moveNext())
        cmbTipoapt_->addItem(tipos[QStringLiteral("descri")].text());
    for (const char *uso : kUsos)
        cmbUso_->addItem(QString::fromUtf8(uso));
    cmbSituacao_->addItems({QStringLiteral("Ativo"), QStringLiteral("Inativo")});

    Recordset fin = cn_.Execute(QStringLiteral("SELECT Count(codigo) As I FROM PJuridica WHERE tipo = '1'"));
    Recordset imob = cn_.Execute(QStringLiteral("SELECT Count(codigo) As I FROM PJuridica WHERE tipo = '0'"));
    if (fin[QStringLiteral("I")].toInt() == 0 || imob[QStringLiteral("I")].toInt() == 0) {
        MsgBox(QStringLiteral("A Tabela de Pessoas Jurídicas está com Problemas, entre em contato com o suporte !"),
               vbCritical, QStringLiteral("Atenção..."));
    } else {
        enchePessoas(cmbFinanceira_, QStringLiteral("1"));
        enchePessoas(cmbImobiliaria_, QStringLiteral("0"));
    }
    for (QComboBox *combo : {cmbTipoapt_, cmbUso_, cmbSituacao_, cmbImobiliaria_, cmbFinanceira_})
        combo->setCurrentIndex(-1);
}

void frmAptos::enchePessoas(QComboBox *combo, const QString &tipo)
{
    // codauto comes with the list: it is what the unit stores.
    auto *model = qobject_cast<QStandardItemModel *>(combo->model());
    for (Recordset rs = cn_.Execute(QStringLiteral("SELECT codigo,nome,codauto FROM PJuridica WHERE tipo = '") + tipo + u'\'');
         !rs.eof(); rs.moveNext()) {
        auto *nome = new QStandardItem(rs[QStringLiteral("nome")].text());
        nome->setData(rs[QStringLiteral("codauto")].text());
        model->appendRow({nome, new QStandardItem(rs[QStringLiteral("codigo")].text())});
    }
    static_cast<QTreeView *>(combo->view())->resizeColumnToContents(0);
}

void frmAptos::valoresExtras(QHash<QString, QString> &v) const
{
    Connection &cn = const_cast<Connection &>(cn_);
    QString tapto;
    if (cmbTipoapt_->currentIndex() >= 0) {
        Recordset rs = cn.Execute(QStringLiteral("SELECT codigo FROM TpAp WHERE descri = '") + cmbTipoapt_->currentText() + u'\'');
        if (!rs.eof())
            tapto = rs[QStringLiteral("codigo")].text();
    }
    v.insert(QStringLiteral("tapto"), tapto);
    v.insert(QStringLiteral("tuso"), cmbUso_->currentIndex() >= 0 ? QString::number(cmbUso_->currentIndex() + 1) : QString());
    v.insert(QStringLiteral("situ"), cmbSituacao_->currentIndex() == 0   ? QStringLiteral("A")
                                     : cmbSituacao_->currentIndex() == 1 ? QStringLiteral("I")
                                                                         : QString());
    // The first row of each firm list is (Nenhum): none chosen stores '1'.
    auto firma = [](const QComboBox *combo) {
        return combo->currentIndex() <= 0 ? QStringLiteral("1") : combo->itemData(combo->currentIndex()).toString();
    };
    v.insert(QStringLiteral("codimob"), firma(cmbImobiliaria_));
    v.insert(QStringLiteral("codfin"), firma(cmbFinanceira_));
}

void frmAptos::carregaExtras(const Recordset &rs)
{
    const QString codigo = codigoAtual();
    Recordset tipo = cn_.Execute(QStringLiteral("SELECT descri FROM TpAp WHERE codigo = '") + rs[QStringLiteral("tapto")].text() + u'\'');
    cmbTipoapt_->setCurrentIndex(tipo.eof() ? -1 : cmbTipoapt_->findText(tipo[QStringLiteral("descri")].text()));
    const int uso = int(val(rs[QStringLiteral("tuso")].text()));
    cmbUso_->setCurrentIndex(uso >= 1 && uso <= 4 ? uso - 1 : -1);
    const QString situ = rs[QStringLiteral("situ")].text().trimmed();
    cmbSituacao_->setCurrentIndex(situ == QLatin1String("A") ? 0 : situ == QLatin1String("I") ? 1 : -1);
    // The firms by their names, through the two joins; a firm that is gone shows (Nenhum).
    auto poe = [](QComboBox *combo, const QString &codauto, const QString &nome) {
        int i = -1;
        for (int n = 1; n < combo->count() && i < 0; ++n)
            if (combo->itemData(n).toString() == codauto)
                i = n;
        if (i < 0)
            i = combo->findText(nome);
        combo->setCurrentIndex(i < 0 ? 0 : i);
    };
    poe(cmbImobiliaria_, rs[QStringLiteral("codimob")].text(), nomeDaJuncao(cn_, QStringLiteral("Codimob"), codigo));
    Recordset fin = cn_.Execute(QStringLiteral("SELECT Aptos.*, PJuridica.Nome AS Financeira FROM PJuridica INNER JOIN "
                                               "Aptos ON PJuridica.Codauto = Aptos.Codfin Where Aptos.Codigo = '")
                                + codigo + u'\'');
    poe(cmbFinanceira_, rs[QStringLiteral("codfin")].text(), fin.eof() ? kNenhum : fin[QStringLiteral("Financeira")].text());
}

bool frmAptos::codigoRecusado(bool achou)
{
    if (!(novo() && achou))
        return false;
    MsgBox(QStringLiteral("Código Já Cadastrado, Utilize Outro !"), vbExclamation, QStringLiteral("Atenção..."));
    return true;
}

void frmAptos::modoMudou(int modo)
{
    ssfones_->setCurrentIndex(0);
    if (modo == 3) {
        cmbImobiliaria_->setCurrentIndex(cmbImobiliaria_->count() > 0 ? 0 : -1);
        cmbFinanceira_->setCurrentIndex(cmbFinanceira_->count() > 0 ? 0 : -1);
    }
}

QString frmAptos::perguntaExclusao(const QString &) const
{
    return QStringLiteral("Deseja realmente excluir este apartamento ? Todos os moradores e veículos relacionados a "
                          "ele serão excluídos.");
}

void frmAptos::antesDeApagar(const QString &codigo)
{
    cn_.Execute(QStringLiteral("DELETE FROM Moradores WHERE codap = ") + aspas(codigo));
    cn_.Execute(QStringLiteral("DELETE FROM Veiculos WHERE Apto = ") + aspas(codigo));
}

void frmAptos::cmdApagar_Click()
{
    // Residents, vehicles and the unit go together or not at all. Receipts stay.
    Transaction passo(cn_);
    RecordForm::cmdApagar_Click();
    passo.commit();
}

void frmAptos::cmdMoradores_Click()
{
    const QString codigo = codigoAtual();
    if (codigo.isEmpty() || val(codigo) == 0)
        return;
    session.tituloPesq = QStringLiteral("Pesquisa de Moradores");
    session.valorPesq = codigo;
    // The residents' form comes from the catalog, as a menu entry opens it.
    for (QWidget *w : QApplication::topLevelWidgets())
        if (auto *mdi = qobject_cast<mdiHabitarium *>(w)) {
            mdi->abreForm(QStringLiteral("frmMoradores2"));
            return;
        }
    if (const FormEntry *entry = findForm(QStringLiteral("frmMoradores2"))) {
        std::unique_ptr<QWidget> form(entry->make());
        form->setObjectName(entry->name);
        if (auto *dialog = qobject_cast<QDialog *>(form.get())) {
            dialog->setParent(this, Qt::Dialog);
            showModal(*dialog);
        }
    }
}

void frmAptos::imprime(const QString &chave)
{
    if (chave.isEmpty())
        return;
    Ampulheta ampulheta;
    Recordset ap = cn_.Execute(QStringLiteral("SELECT * FROM Aptos WHERE codigo = ") + aspas(chave));
    if (ap.eof())
        return;

    // The card: the unit on every row, one row a resident (the unit alone when it has none).
    QStringList unidade;
    const QStringList colunas = colunasDoCartao();
    for (const QString &c : colunas.mid(0, colunas.indexOf(QStringLiteral("observ")) + 1))
        unidade << semPrompts(ap[c].text()).trimmed();
    Recordset tipo = cn_.Execute(QStringLiteral("SELECT descri FROM TpAp WHERE codigo = ") + aspas(ap[QStringLiteral("tapto")].text()));
    const QString situ = ap[QStringLiteral("situ")].text().trimmed();
    unidade << (tipo.eof() ? QString() : tipo[QStringLiteral("descri")].text())
            << textoDaLista(kUsos, 4, ap[QStringLiteral("tuso")].text())
            << (situ == QLatin1String("A") ? QStringLiteral("Ativo") : situ == QLatin1String("I") ? QStringLiteral("Inativo") : QString());
    ReportData cartao;
    cartao.columns = colunasDoCartao();
    cartao.title = QStringLiteral("Cadastro de Apartamento");
    for (Recordset mo = cn_.Execute(QStringLiteral("SELECT * FROM Moradores WHERE codap = ") + aspas(chave)); !mo.eof(); mo.moveNext()) {
        const QDate nascto = mo[QStringLiteral("nascto")].toDate();
        cartao.rows.push_back(unidade + QStringList{mo[QStringLiteral("codap")].text(), mo[QStringLiteral("nome")].text(),
                                                    textoDaLista(kVinculos, 7, mo[QStringLiteral("vinculo")].text()),
                                                    nascto.isValid() ? nascto.toString(QStringLiteral("dd/MM/yyyy")) : QString()});
    }
    if (cartao.rows.empty())
        cartao.rows.push_back(unidade + QStringList{QString(), QString(), QString(), QString()});

    ReportData veiculos;
    veiculos.columns = kColunasVeiculos;
    veiculos.title = cartao.title;
    for (Recordset ve = cn_.Execute(QStringLiteral("SELECT * FROM Veiculos WHERE apto = ") + aspas(chave)); !ve.eof(); ve.moveNext()) {
        QStringList linha;
        for (const QString &c : kColunasVeiculos)
            linha << ve[c].text();
        veiculos.rows.push_back(linha);
    }

    cartao.setFormula(QStringLiteral("Veiculos"), veiculos.rows.empty() ? QStringLiteral("Não") : QStringLiteral("Sim"));
    cartao.setFormula(QStringLiteral("Financeira"), [&] {
        Recordset fin = cn_.Execute(QStringLiteral("SELECT Aptos.*, PJuridica.Nome AS Financeira FROM PJuridica INNER JOIN "
                                                   "Aptos ON PJuridica.Codauto = Aptos.Codfin Where Aptos.Codigo = ")
                                    + aspas(chave));
        return fin.eof() ? kNenhum : fin[QStringLiteral("Financeira")].text();
    }());
    cartao.setFormula(QStringLiteral("Imob"), nomeDaJuncao(cn_, QStringLiteral("Codimob"), chave));

    // The vehicles follow the card on the same paper, numbered on from it.
    auto doc = MontaRelatorio(QStringLiteral("CadAp.rpt"), cartao);
    if (!veiculos.rows.empty()) {
        veiculos.setFormula(QStringLiteral("Nome"), ap[QStringLiteral("nome")].text());
        doc = juntaRelatorios({doc, MontaRelatorioDesde(QStringLiteral("Vec.rpt"), veiculos, doc->pageCount() + 1)});
    }
    MostraDocumento(doc);
}

#include "reporting/printjob.h"

#include "core/datastore.h"
#include "core/session.h"
#include "reporting/imprime.h"
#include "reporting/junta.h"

bool PrintJob::open(const QString &templateName)
{
    close();
    try {
        tpl_ = loadTemplate(session.sysPath + templateName);
    } catch (const TemplateError &e) {
        motivo_ = e.message();
        return false;
    }
    templateName_ = templateName;
    return true;
}

bool PrintJob::setFormula(const QString &name, const QString &value)
{
    if (!isOpen())
        return false;
    data_.setFormula(name, value);
    return true;
}

bool PrintJob::setWindowOptions(bool, bool)
{
    return isOpen();
}

bool PrintJob::outputToWindow(const QString &title)
{
    if (!isOpen() || !temVisualizador()) {
        motivo_ = QStringLiteral("não há janela para mostrar o relatório");
        return false;
    }
    data_.title = title;
    toWindow_ = true;
    return true;
}

bool PrintJob::start()
{
    if (!isOpen() || !toWindow_)
        return false;
    if (tpl_->sourceFile.isEmpty() || tpl_->sourceSql.isEmpty()) {
        motivo_ = QStringLiteral("o modelo não diz de onde ler os dados");
        return false;
    }
    // The job reads the file on a connection of its own, as the engine did:
    // what the form wrote must be in the file before the start.
    ReportData data = data_;
    try {
        Connection con;
        con.Open(connectionString(session.sysPath, tpl_->sourceFile, session.dbSenha));
        Recordset rs = con.Execute(tpl_->sourceSql);
        data.columns = rs.columnNames();
        for (; !rs.eof(); rs.moveNext()) {
            QStringList row;
            for (int i = 0; i < data.columns.size(); ++i)
                row << rs.fieldAt(i).text();
            data.rows.push_back(std::move(row));
        }
        con.Close();
        formulasComuns(data);
        auto doc = std::make_shared<ReportDocument>(renderReport(*tpl_, data));
        doc->templateName = templateName_;
        MostraDocumento(std::move(doc));
    } catch (const DatabaseError &e) {
        motivo_ = e.message();
        return false;
    } catch (const TemplateError &e) {
        motivo_ = e.message();
        return false;
    }
    return true;
}

void PrintJob::close()
{
    tpl_.reset();
    data_ = ReportData();
    toWindow_ = false;
    templateName_.clear();
}

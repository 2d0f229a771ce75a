#pragma once
// The start of a session without its windows: the title rows, the test of a
// login, the rights read from Usuarios at each use, and the choice of the
// active condominium's file. The forms of core/forms call these.
#include "core/datastore.h"

#include <QString>
#include <cstdint>
#include <functional>

// The three rows of the window title, from the session.
QString tituloInicial();        // "Habitarium - Versão 1.0.0 - {Cliente}"
QString tituloAdministrador();  // + "  -  Usuário: Administrador"
QString tituloUsuario();        // + "  -  Usuário: nome  -  Empresa Ativa: 1 - Nome"

enum class ResultadoLogin {
    Administrador,  // the installation's administrator: only usuario is written
    Usuario,        // a row of Usuarios: the session holds its values
    CamposVazios,   // a field was empty; nothing was read and the try does not count
    Recusado,       // unknown user or wrong password; the try counts
};

// Steps 2 to 6 of the login on cn (the system file). The administrator's
// login compares exactly; a user's name compares as the database compares text.
ResultadoLogin ConfereLogin(Connection &cn, const QString &login, const QString &senha);

// A right of the signed-in user ("cfcon", "cfadi"...), read from Usuarios at
// this moment on a connection of its own. No row means no right.
bool TemDireito(const QString &coluna);

// frmAtempr's activation once a code above 0 is chosen: session values,
// Usuarios.empat, the file (created from the template on yes, the program
// ends on no) and conAtiva.
void AtivaCondominio(Connection &cnSistema, int16_t codigo, const QString &nome);

// The end of EntrarSistema for a normal user: arqAtivo from empat, the file
// created on yes (with the Pjuridica seed rows), or another condominium chosen
// through escolherOutro, or the end of the program; then conAtiva.
void PreparaArquivoAtivo(const std::function<void()> &escolherOutro);

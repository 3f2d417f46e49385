#include "store/frmCuadro.h"

#include "game/Impresion.h"
#include "game/Modos.h"
#include "store/AvisoError.h"

namespace juego {

frmCuadro::frmCuadro(Zarpi& zarpi, Forms& forms, Files& files, Printer& printer)
    : Form("frmCuadro", {.Caption = u"Cuadro de honor",
                         .Width = 10950,
                         .Height = filas::Alto,
                         .Background = "cuadro",
                         .Icon = "icondialogo"}),
      z(zarpi),
      forms(forms),
      files(files) {
    OnLoad = [this] { Form_Load(); };
    cmdAceptar.Click = [this] { this->forms.Unload(*this); };
    cmdRestablecer.Click = [this] { cmdRestablecer_Click(); };
    cmdImprimir.Click = [this, &printer] {
        if (Imprimir(printer, *this)) this->forms.Unload(*this);
    };
}

void frmCuadro::Form_Load() {
    Label2.Caption = TextoModo(z.ModoHonor);
    if (!LeerFilas()) MostrarErrorAlFrente(z);
}

bool frmCuadro::LeerFilas() {
    const auto count = LeerContador(files, Archivo());
    if (!count) return false;
    ArchivoRegistros<FilaHonor> rows(files, Archivo());
    for (int k = 1; k <= *count; ++k) {
        filas::AñadirFila(*this, k, {&cmdAceptar, &cmdRestablecer, &cmdImprimir},
                          {&shpAceptar, &shpRestablecer, &shpImprimir},
                          {&lblZarpis, &lblNombre, &lblPlenos, &lblTiempo, &lblFecha});
        const auto row = rows.Leer(k);
        if (!row) return false;
        lblZarpis(k).Caption = Trim(row->puntos);
        lblNombre(k).Caption = Trim(row->Nombre);
        lblPlenos(k).Caption = Trim(row->plenos);
        lblTiempo(k).Caption = Trim(row->Tiempo);
        lblFecha(k).Caption = Trim(row->Fecha);
    }
    cmdRestablecer.Visible = *count == LímiteFilas;
    shpRestablecer.Visible = *count == LímiteFilas;
    return true;
}

void frmCuadro::cmdRestablecer_Click() {
    if (!Restablecer()) MostrarErrorAlFrente(z);
    forms.Unload(*this);
}

bool frmCuadro::Restablecer() {
    Diario diario(files, Archivo());
    ArchivoRegistros<FilaHonor> rows(files, Archivo());
    if (!diario.Anotado()) return false;
    for (int k = 1; k <= LímiteFilas; ++k) {
        if (!rows.Vaciar(k)) return false;
    }
    return EscribirContador(files, Archivo(), 0) && diario.Confirmar();
}

bool InsertarEnCuadro(const Zarpi& z, Files& files, const Text& fecha) {
    const Par& pair = ArchivosHonor.at(static_cast<std::size_t>(z.Modo - 1));
    const auto count = LeerContador(files, pair);
    if (!count) return false;
    ArchivoRegistros<FilaHonor> rows(files, pair);
    // The row above the new one: the lowest with at least as many zarpis.
    int above = *count;
    for (; above > 0; --above) {
        const auto row = rows.Leer(above);
        if (!row) return false;
        if (z.puntos <= NúmeroDeCampo(row->puntos)) break;
    }
    if (above == LímiteFilas) return true;
    return InsertarFila(files, pair, above + 1, *count,
                        FilaHonor{.puntos = SignedDecimal(z.puntos),
                                  .Nombre = z.Nombre,
                                  .plenos = SignedDecimal(z.plenos),
                                  .Tiempo = Text(TextoDeTiempo(z.Tiempo)),
                                  .Fecha = fecha});
}

}  // namespace juego

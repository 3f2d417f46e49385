#include "voice/Contenidos.h"

#include <algorithm>
#include <array>
#include <tuple>

#include "voice/Palabras.h"

namespace juego {

namespace {

/// What a window says of itself: a text of its own, then the names of these elements, as far as they are seen.
struct Contenido {
    std::string_view Form;
    TextView Texto;
    std::array<std::string_view, 9> Elementos;
};
constexpr auto kContents = std::to_array<Contenido>({
    {"frmNivel", u"", {"Label4", "Label2"}},
    {"frmPuntos", u"", {"Label5", "Label1", "Label2", "Label4"}},
    {"frmNombre", u"Escribe tu nombre, o los vuestros con una y entre ellos.", {}},
    {"frmGuardar", u"Escribe una contraseña, y repítela en la casilla siguiente.", {}},
    {"frmReanudar", u"", {"Label1", "Label2", "Label17", "Label9", "Label3", "Label11", "Label13", "Label15"}},
    {"frmFecha", u"", {"Label1", "Label3"}},
    {"frmDiploma", u"Diploma de Zarpi.", {"Text1", "Text2", "Text3", "Text4", "Text5"}},
    {"frmCuadro", u"", {"Label2"}},
});

/// A list of ten rows: its columns, each with what follows its value.
struct Columna {
    std::string_view Elemento;
    TextView Detrás;
};
struct Lista {
    std::string_view Form;
    std::array<Columna, 7> Columnas;
};
constexpr auto kLists = std::to_array<Lista>({
    {"frmCuadro",
     {{{"lblZarpis", u" zarpis"},
       {"lblNombre", u""},
       {"lblPlenos", u" plenos"},
       {"lblTiempo", u""},
       {"lblFecha", u""}}}},
    {"frmÚltimas",
     {{{"lblPalabra", u" de 30"},
       {"lblNombre", u""},
       {"lblZarpis", u" zarpis"},
       {"lblPlenos", u" plenos"},
       {"lblModo", u""},
       {"lblTiempo", u""},
       {"lblFecha", u""}}}},
});
constexpr int kRows = 10;

/// The rules and About are read as they stand, heading before paragraph, behind what is for players who listen.
struct Lectura {
    std::string_view Form;
    TextView Antes;
};
constexpr auto kReadWhole = std::to_array<Lectura>({
    {"frmNormas",
     u"Teclas: F7 prepara el comodín, y una cifra elige la casilla; el cero, la décima. F8 dice cómo va "
     u"la partida. El tabulador y las flechas recorren la ventana, y la barra espaciadora pulsa."},
    {"frmAcerca", u""},
});

Text Nombre(const Control& control) {
    if (control.kind != Kind::TextBox) return SpokenNameOf(control);
    return SpokenNameOf(control) + u": " + static_cast<const TextBox&>(control).Text;
}

Text Frase(Text text) {
    constexpr TextView kEnds = u".!?:";
    text = Trim(text);
    if (!text.empty() && kEnds.find(text.back()) == TextView::npos) text += u'.';
    return text;
}

Text Fila(const Form& form, const Lista& list, int row) {
    Text said;
    for (const Columna& column : list.Columnas) {
        if (column.Elemento.empty()) break;
        const auto& cell =
            static_cast<const Label&>(*form.Find(std::string(column.Elemento) + "(" + std::to_string(row) + ")"));
        if (!cell.Visible) return {};
        const bool number = !cell.Caption.empty() && cell.Caption.front() >= u'0' && cell.Caption.front() <= u'9';
        said += (said.empty() ? u"" : u", ") + cell.Caption + (number ? Text(column.Detrás) : Text());
    }
    return Decimal(row) + u": " + said + u".";
}

using Líneas = std::vector<Text>;

void Poner(Líneas& lines, Text line) {
    if (!line.empty()) lines.push_back(std::move(line));
}

Líneas Entera(const Form& form) {
    std::vector<const Control*> labels;
    for (const Control* control : form.Controls()) {
        if (control->kind == Kind::Label) labels.push_back(control);
    }
    // In columns from left to right; a heading begins above its paragraph, or on its first line.
    constexpr int kColumn = 3000;
    const bool inColumns = form.Width > 3 * kColumn;
    const auto place = [inColumns](const Control* c) {
        const bool acrossAll = !inColumns || c->Width > 2 * kColumn || c->Top < kColumn;
        return std::tuple(acrossAll ? -1 : c->Left / kColumn, c->Top, c->Left, c->Width);
    };
    std::ranges::sort(labels, {}, place);
    Líneas lines;
    for (const Control* label : labels) Poner(lines, Frase(SpokenNameOf(*label)));
    return lines;
}

/// "3 partidas guardadas, elegida la 2."
Text Elegida(const ListBox& list) {
    const int games = std::max(0, static_cast<int>(list.List.size()) - 1);  // behind the heading
    if (games == 0) return u"No hay partidas guardadas.";
    return voz::Contar(games, u"partida guardada", u"partidas guardadas") +
           (list.ListIndex > 0 ? u", elegida la " + Decimal(list.ListIndex) : Text()) + u".";
}

/// How far the curtains of the diploma are, in steps that are worth being told.
Text Cortinas(const Form& diploma) {
    constexpr int kClosed = 5400;
    constexpr int kStep = 10;
    if (!diploma.KeyPreview) return u"Cortinas abiertas.";
    const int open = 100 * (kClosed - diploma.Find("Picture2")->Width) / kClosed;
    if (open < kStep) return u"Cortinas cerradas; la flecha izquierda las abre.";
    return u"Cortinas abiertas al " + Decimal(open / kStep * kStep) + u" por ciento.";
}

}  // namespace

Líneas ContenidoDe(const Form& form) {
    Líneas lines;
    const auto whole = std::ranges::find(kReadWhole, form.Name, &Lectura::Form);
    if (whole != kReadWhole.end()) {
        lines = Entera(form);
        if (!whole->Antes.empty()) lines.insert(lines.begin(), Text(whole->Antes));
    }
    if (form.Name == "frmReanudar") lines.push_back(Elegida(static_cast<const ListBox&>(*form.Find("lstLista"))));
    for (const Contenido& content : kContents) {
        if (content.Form != form.Name) continue;
        Poner(lines, Text(content.Texto));
        for (const std::string_view name : content.Elementos) {
            const Control* const element = name.empty() ? nullptr : form.Find(name);
            if (element != nullptr && element->Visible) Poner(lines, Frase(Nombre(*element)));
        }
    }
    if (form.Name == "frmDiploma") lines.push_back(Cortinas(form));
    for (const Lista& list : kLists) {
        if (list.Form != form.Name) continue;
        const std::size_t before = lines.size();
        for (int row = 1; row <= kRows; ++row) Poner(lines, Fila(form, list, row));
        if (lines.size() == before) lines.push_back(u"No hay ninguna partida.");
    }
    return lines;
}

}  // namespace juego

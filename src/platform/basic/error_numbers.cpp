#include "platform/basic/error_numbers.h"

namespace basic {

namespace {

std::string_view runTimeText(ErrorNumber number) {
    switch (number) {
    case ErrorNumber::InvalidCall:
        return "Ungültiger Prozeduraufruf oder ungültiges Argument.";
    case ErrorNumber::Overflow:
        return "Überlauf.";
    case ErrorNumber::DivisionByZero:
        return "Division durch Null.";
    case ErrorNumber::TypeMismatch:
        return "Die Typen passen nicht zusammen.";
    case ErrorNumber::InvalidNull:
        return "Null ist hier nicht zulässig.";
    default:
        return {};
    }
}

std::string_view fileText(ErrorNumber number) {
    switch (number) {
    case ErrorNumber::FileNotFound:
        return "Die Datei wurde nicht gefunden.";
    case ErrorNumber::DiskFull:
        return "Auf dem Datenträger ist nicht genügend Platz.";
    case ErrorNumber::NotUpdatable:
        return "Die Datenbank oder das Objekt ist schreibgeschützt.";
    case ErrorNumber::WrongPassword:
        return "Das Kennwort ist ungültig.";
    case ErrorNumber::InvalidPath:
        return "Der Pfad ist ungültig.";
    case ErrorNumber::Corrupt:
        return "Die Datenbankdatei ist beschädigt.";
    case ErrorNumber::CannotOpen:
        return "Die Datei lässt sich nicht öffnen.";
    case ErrorNumber::Locked:
        return "Die Daten sind gerade von einer anderen Stelle gesperrt.";
    case ErrorNumber::FileExists:
        return "Die Datenbank ist bereits vorhanden.";
    case ErrorNumber::UnknownFormat:
        return "Unbekanntes Datenbankformat.";
    case ErrorNumber::DatabaseClosed:
        return "Die Datenbank oder das Objekt ist nicht mehr geöffnet.";
    default:
        return {};
    }
}

std::string_view statementText(ErrorNumber number) {
    switch (number) {
    case ErrorNumber::TooFewParameters:
        return "Zu wenige Parameter.";
    case ErrorNumber::Syntax:
        return "Syntaxfehler in der Anweisung.";
    case ErrorNumber::StatementKind:
        return "Diese Art von Anweisung ist hier nicht möglich.";
    case ErrorNumber::CannotUpdateJoin:
        return "Die Anweisung muss eine aktualisierbare Abfrage verwenden.";
    case ErrorNumber::UnknownTable:
        return "Die Tabelle oder Abfrage wurde nicht gefunden.";
    case ErrorNumber::AmbiguousField:
        return "Das Feld kommt in mehreren Tabellen vor.";
    case ErrorNumber::JoinField:
        return "Die Verknüpfung bezieht sich auf ein Feld, das in keiner ihrer Tabellen steht.";
    case ErrorNumber::OrderByDistinct:
        return "Mit DISTINCT lässt sich nur nach dem ordnen, was ausgewählt ist.";
    case ErrorNumber::UnknownFunction:
        return "Unbekannte Funktion.";
    case ErrorNumber::CannotDelete:
        return "Aus den angegebenen Tabellen lässt sich nichts löschen.";
    case ErrorNumber::AggregateMisuse:
        return "Das Feld ist nicht Teil der Gruppierung.";
    case ErrorNumber::SubqueryColumns:
        return "Die Unterabfrage darf hier nur ein Feld liefern.";
    case ErrorNumber::UnionColumns:
        return "Die Abfragen der Vereinigung haben verschieden viele Felder.";
    case ErrorNumber::FieldListMismatch:
        return "Die Zahl der Werte passt nicht zur Zahl der Felder.";
    case ErrorNumber::SubqueryRows:
        return "Die Unterabfrage darf höchstens einen Datensatz liefern.";
    case ErrorNumber::TooComplex:
        return "Die Abfrage ist zu komplex.";
    case ErrorNumber::CriteriaTypes:
        return "Die Datentypen im Kriterium passen nicht zusammen.";
    default:
        return {};
    }
}

std::string_view schemaText(ErrorNumber number) {
    switch (number) {
    case ErrorNumber::TableExists:
        return "Die Tabelle ist bereits vorhanden.";
    case ErrorNumber::TableMissing:
        return "Das Objekt wurde nicht gefunden.";
    case ErrorNumber::InvalidName:
        return "Der Name ist ungültig.";
    case ErrorNumber::FieldExists:
        return "Das Feld ist mehrfach definiert.";
    case ErrorNumber::IndexExists:
        return "Der Index ist bereits vorhanden.";
    case ErrorNumber::InvalidDefinition:
        return "Syntaxfehler in der Felddefinition.";
    default:
        return {};
    }
}

std::string_view rowText(ErrorNumber number) {
    switch (number) {
    case ErrorNumber::NoEdit:
        return "Update oder CancelUpdate ohne AddNew oder Edit.";
    case ErrorNumber::NoCurrentRecord:
        return "Kein aktueller Datensatz.";
    case ErrorNumber::KeyViolation:
        return "Die Änderung würde doppelte Werte in einem Schlüssel oder eindeutigen Index ergeben.";
    case ErrorNumber::InvalidBookmark:
        return "Das Lesezeichen ist ungültig.";
    case ErrorNumber::FieldTooSmall:
        return "Der Text ist zu lang für das Feld.";
    case ErrorNumber::RowDeleted:
        return "Der Datensatz ist gelöscht.";
    case ErrorNumber::RowChanged:
        return "Der Datensatz wurde inzwischen an anderer Stelle geändert.";
    case ErrorNumber::NotSupported:
        return "Der Vorgang wird von diesem Objekt nicht unterstützt.";
    case ErrorNumber::ItemNotFound:
        return "Das Element wurde in dieser Auflistung nicht gefunden.";
    case ErrorNumber::ValueRequired:
        return "Das Feld darf nicht leer (Null) bleiben.";
    case ErrorNumber::ZeroLength:
        return "Das Feld darf keine leere Zeichenfolge enthalten.";
    case ErrorNumber::FieldConversion:
        return "Der Wert passt nicht zum Datentyp des Feldes.";
    case ErrorNumber::NoTransaction:
        return "Es ist keine Transaktion begonnen.";
    default:
        return {};
    }
}

} // namespace

std::string_view standardText(ErrorNumber number) {
    for (const auto text : {runTimeText, fileText, statementText, schemaText, rowText})
        if (const std::string_view found = text(number); !found.empty()) return found;
    return "Interner Fehler.";
}

void raise(ErrorNumber number, std::string_view detail) {
    std::string text(standardText(number));
    if (!detail.empty()) text.append(" ").append(detail);
    throw Error(static_cast<int>(number), text);
}

} // namespace basic

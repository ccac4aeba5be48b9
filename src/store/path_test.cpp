#include "store/path_test.h"

#include "store/database_files.h"

namespace store {

namespace {

bool opens(const jet::Workspace& workspace, const std::string& path, std::string_view source) {
    try {
        jet::Database database = workspace.OpenDatabase(path, false, false, openConnect());
        jet::Recordset rows = database.OpenRecordset(source);
        rows.Close();
        database.Close();
        return true;
    } catch (const jet::Error&) {
        return false;
    }
}

} // namespace

// One row is enough for an answer: the stays of many years need not be read for it.

bool fileHoldsTable(const jet::Workspace& workspace, const std::string& path, std::string_view table) {
    return opens(workspace, path, "SELECT TOP 1 * FROM " + std::string(table));
}

bool linksWork(const jet::Workspace& workspace, const std::string& localFile) {
    return opens(
        workspace, localFile,
        "SELECT TOP 1 tblBelegung.ID, tblBelegung.Zimmernummer, tbZimmernummern.NeueNummer FROM tblBelegung INNER JOIN "
        "tbZimmernummern ON tblBelegung.Zimmernummer = tbZimmernummern.Zimmernummer;");
}

} // namespace store

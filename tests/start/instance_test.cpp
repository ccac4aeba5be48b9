#include "start/instance.h"

#include "support/temp_folder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace start {
namespace {

namespace fs = std::filesystem;

TEST(Instance, LeadingDigitsOfTheNameCount) {
    struct Case {
        const char* path;
        int nummer;
    };
    for (const Case& c : {Case{"/opt/hotel.exe", 0},
                          {"/opt/herbergo", 0},
                          {"/opt/1hotel", 1},
                          {"/opt/2hotel.exe", 2},
                          {"/opt/3hotel", 3},
                          {"/opt/12", 12},
                          {"/opt/h2otel", 0},
                          {"/opt/02hotel", 2},
                          {"/opt/-1hotel", 0},
                          {"/opt/&H2", 0},
                          {"/opt/2e9hotel", 2},
                          {"/opt/ 2hotel", 0},
                          {"/opt/2ütel", 2},
                          {"", 0}})
        EXPECT_EQ(instanzVon(c.path).Nummer, c.nummer) << c.path;
    EXPECT_GT(instanznummer("99999999999999999999hotel"), kHöchsteInstanz);
}

TEST(Instance, SecondInstallationHasKeysAndFilesOfItsOwn) {
    const Schlüssel keys = schlüssel(2);
    EXPECT_EQ(keys.Zentral, "Zentra2");
    EXPECT_EQ(keys.Pfad, "Pfa2");
    EXPECT_EQ(keys.BeispielPfad, "BeispielPfa2");
    EXPECT_EQ(keys.LokalDB, "lokalD2");
    EXPECT_EQ(keys.Excel, "Exce2");
    EXPECT_EQ(instanzSchlüssel(2), "Instanz2");
    EXPECT_EQ(schlüssel(0).LokalDB, "LokalDB");
    EXPECT_EQ(schlüssel(0).Excel, "Excel");
    EXPECT_EQ(Instanz({2, "/x"}).Namen().Herbergo, "Herberg2.mdb");
}

TEST(Instance, LinkNamesTheInstallationAndItsFolder) {
    const support::TempFolder folder;
    fs::create_directory(folder.path() / "bin");
    fs::create_directory(folder.path() / "haus");
    std::ofstream(folder.file("bin/herbergo")) << "#!/bin/sh\n";
    fs::permissions(folder.file("bin/herbergo"), fs::perms::owner_all);
    fs::create_symlink(folder.file("bin/herbergo"), folder.file("haus/2hotel"));

    const Instanz direct = instanzVon(programmpfad(folder.file("haus/../haus/2hotel"), ""));
    EXPECT_EQ(direct.Nummer, 2);
    EXPECT_EQ(direct.Ordner, folder.file("haus"));

    const std::string path = "/nirgends:" + folder.file("haus");
    EXPECT_EQ(programmpfad("2hotel", path), folder.file("haus/2hotel"));
    EXPECT_EQ(programmpfad("./2hotel", path), (fs::current_path() / "2hotel").string());
    EXPECT_EQ(programmpfad("fehlt", path), (fs::current_path() / "fehlt").string());
    std::ofstream(folder.file("bin/notiz")) << "text";
    EXPECT_EQ(programmpfad("notiz", folder.file("bin")), (fs::current_path() / "notiz").string());
}

} // namespace
} // namespace start

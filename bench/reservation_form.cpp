#include "benchmarks.h"

#include "platform/basic/format.h"
#include "platform/jet/connection.h"
#include "reservations/numbers.h"
#include "reservations/reservation_form.h"
#include "reservations/season_price.h"

#include <cstdio>
#include <functional>
#include <memory>

namespace bench {

namespace {

using reservations::frmReservierung;

constexpr int singleSaves = 5;

/// Days that no stay of the house reaches.
basic::Date freeDay(int i) { return today() + 140 + i % 200 * 3; }

struct NewStay {
    int room;
    basic::Date von;
    basic::Date bis;
    std::string name; ///< its short name and number
    int guest;
};

NewStay stayAt(int i) {
    return {.room = 1 + i % houseRooms,
            .von = freeDay(i / houseRooms),
            .bis = freeDay(i / houseRooms) + 3,
            .name = "Neu" + std::to_string(i),
            .guest = 1 + i % 50'000};
}

/// The form as it stands before the user presses the button: its number typed, since the search for the next one is
/// measured by itself.
std::unique_ptr<frmReservierung> filledForm(Desk& desk, const NewStay& stay) {
    auto form = std::make_unique<frmReservierung>(
        desk.g, reservations::Formulardienste{.adressen = desk.guests},
        start::ReservierungAnfrage{.Zimmernummer = stay.room, .Von = stay.von, .Bis = stay.bis, .Art = 1});
    form->adresse.cboAdresse_Click(stay.guest);
    form->fldK_rzel.Text = stay.name;
    form->fldK_rzel_Change();
    form->txtBeNummer_eigen.Text = stay.name;
    return form;
}

void require(bool good, const char* what) {
    if (!good) throw std::runtime_error(what);
}

void oursSave(benchmark::State& state, BenchHouse& house, Desk& desk, int& next) {
    std::int64_t flushes = 0;
    for (auto _ : state) {
        state.PauseTiming();
        auto form = filledForm(desk, stayAt(next++));
        const std::int64_t before = house.flushes.count();
        state.ResumeTiming();
        const bool saved = form->Reserv();
        state.PauseTiming();
        flushes += house.flushes.count() - before;
        require(saved, "the new stay was not saved");
        desk.g.dbHaupt.Execute("DELETE * FROM tblBelegung WHERE ID = " + std::to_string(form->ID()));
        form.reset();
        state.ResumeTiming();
    }
    state.counters["flushes"] = static_cast<double>(flushes) / static_cast<double>(state.iterations());
}

/// The same reads and writes by hand.
struct PlainSave {
    explicit PlainSave(BenchHouse& house)
        : name(plain::prepare(house.plain, R"(SELECT "ID" FROM "tblBelegung" WHERE "Kürzel" = ?1)")),
          overlap(plain::prepare(
              house.plain,
              R"(SELECT "ID" FROM "tblBelegung" WHERE "Zimmernummer" = ?1 AND "Gelöscht" = 0 AND ("Von" >= ?2 AND "Von" <= ?3
 OR "Bis" >= ?2 AND "Bis" <= ?3 OR ?4 >= "Von" AND ?4 < "Bis" OR ?5 > "Von" AND ?5 < "Bis"))")),
          insert(plain::prepare(
              house.plain,
              R"(INSERT INTO "tblBelegung" ("Zimmernummer","Von","Bis","GastID","Kürzel","Belegungsart","AnzahlGäste",
 "Preis","PreisProNacht","AnzahlÜbernachtungen","Gelöscht","BelegNummer_eigen","WannErstellt","Wäsche1","Wäsche2")
 VALUES (?1,?2,?3,?4,?5,1,2,240.0,80.0,3,0,?5,?2,6,3))")),
          guest(plain::prepare(house.plain, R"(SELECT "BenutztVon1","Herkunft1" FROM "Address" WHERE "ID" = ?1)")),
          use(plain::prepare(
              house.plain,
              R"(UPDATE "Address" SET "BenutztVon1" = 'Herbergo', "Herkunft1" = 'Herbergo' WHERE "ID" = ?1)")),
          remove(plain::prepare(house.plain, R"(DELETE FROM "tblBelegung" WHERE "Kürzel" = ?1)")) {}

    void save(const NewStay& stay) const {
        constexpr jet::ExprType id[] = {jet::ExprType::Long};
        constexpr jet::ExprType marks[] = {jet::ExprType::Text, jet::ExprType::Text};
        plain::bind(name.get(), {stay.name});
        require(plain::fetch(name.get(), id).count() == 0, "the short name is taken");
        expectFree(stay, 0);
        plain::bind(insert.get(), {stay.room, stay.von, stay.bis, stay.guest, stay.name});
        plain::change(insert.get());
        expectFree(stay, 1);
        plain::bind(guest.get(), {stay.guest});
        benchmark::DoNotOptimize(plain::fetch(guest.get(), marks));
        plain::bind(use.get(), {stay.guest});
        plain::change(use.get());
    }
    void takeBack(const NewStay& stay) const {
        plain::bind(remove.get(), {stay.name});
        plain::change(remove.get());
    }

private:
    void expectFree(const NewStay& stay, std::size_t own) const {
        constexpr jet::ExprType id[] = {jet::ExprType::Long};
        plain::bind(overlap.get(), {stay.room, stay.von + 1, stay.bis - 1, stay.von, stay.bis});
        require(plain::fetch(overlap.get(), id).count() == own, "the room is taken");
    }

    plain::Statement name, overlap, insert, guest, use, remove;
};

void plainSave(benchmark::State& state, BenchHouse& house, const PlainSave& plain, int& next) {
    std::int64_t flushes = 0;
    for (auto _ : state) {
        const NewStay stay = stayAt(next++);
        const std::int64_t before = house.flushes.count();
        plain.save(stay);
        state.PauseTiming();
        flushes += house.flushes.count() - before;
        plain.takeBack(stay);
        state.ResumeTiming();
    }
    state.counters["flushes"] = static_cast<double>(flushes) / static_cast<double>(state.iterations());
}

void registerSave(BenchHouse& house, Desk& desk, RatioTable& table) {
    const std::string what = "save of a new stay, its number typed";
    const auto next = std::make_shared<int>(0);
    const auto plain = std::make_shared<PlainSave>(house);
    benchmark::RegisterBenchmark((what + "/ours").c_str(), [&house, &desk, next](benchmark::State& state) {
        oursSave(state, house, desk, *next);
    })->Iterations(singleSaves);
    benchmark::RegisterBenchmark((what + "/plain").c_str(), [&house, plain, next](benchmark::State& state) {
        plainSave(state, house, *plain, *next);
    })->Iterations(singleSaves);
    table.setTarget(what, "5 ms");
}

using Work = std::function<void(int)>;

/// Without a hand-written side: the figure stands for itself.
void registerAlone(RatioTable& table, const std::string& what, const std::string& target, Work work) {
    benchmark::RegisterBenchmark((what + "/ours").c_str(), [work = std::move(work)](benchmark::State& state) {
        for (int i = 0; auto _ : state)
            work(i++);
    });
    table.setTarget(what, target);
}

void registerNumber(BenchHouse& house, Desk& desk, RatioTable& table) {
    const std::string what = "next reservation number";
    registerAlone(table, what, "index + 60 ms",
                  [&desk](int) { benchmark::DoNotOptimize(reservations::NächsteBelegnummer(desk.g.dbHaupt, {})); });
    const auto statement = std::make_shared<plain::Statement>(plain::prepare(
        house.plain,
        R"(SELECT DISTINCT "BelegNummer_eigen", "BelegNummer" FROM "tblBelegung" WHERE "BelegNummer" IS NOT NULL
 AND "BelegNummer" > 0 ORDER BY "BelegNummer")"));
    benchmark::RegisterBenchmark((what + "/plain").c_str(), [statement](benchmark::State& state) {
        for (auto _ : state) {
            while (sqlite3_step(statement->get()) == SQLITE_ROW)
                benchmark::DoNotOptimize(sqlite3_column_int64(statement->get(), 1));
            sqlite3_reset(statement->get());
        }
    });
}

std::unique_ptr<frmReservierung> opened(Desk& desk, int id) {
    return std::make_unique<frmReservierung>(desk.g, reservations::Formulardienste{.adressen = desk.guests},
                                             start::ReservierungAnfrage{.IDs = {id}});
}

void registerReads(BenchHouse& house, Desk& desk, RatioTable& table) {
    const auto keyAt = [stays = house.stays](int i) { return 1 + static_cast<int>(i * 7919LL % stays); };
    registerAlone(table, "opening of a stored stay", "10 ms",
                  [&desk, keyAt](int i) { benchmark::DoNotOptimize(opened(desk, keyAt(i))); });
    const std::shared_ptr<frmReservierung> form = opened(desk, keyAt(1));
    registerAlone(table, "live warning after a changed date", "1 ms", [form](int i) {
        form->fldBis.Text = basic::Format(today() + i % 90, "dd.mm.yyyy");
        form->fldBis_Change();
    });
    registerAlone(table, "season price of 30 nights", "3 ms", [&desk](int i) {
        reservations::clsSaisonpreis price(desk.g.dbHaupt, desk.g.dialogs, "");
        const basic::Date von = today() + i % 300;
        const double total = price.Saisonpreis_Ausrechnen(1 + i % houseRooms, basic::Format(von, "dd.mm.yyyy"),
                                                          basic::Format(von + 30, "dd.mm.yyyy"), false);
        require(total > 0, "no season price");
    });
    registerAlone(table, "guest box, first matches of two letters", "10 ms", [&desk](int i) {
        const auto found = desk.guests.matches(i % 2 == 0 ? "mü" : "Mü", 30);
        require(found.size() == 30, "too few matches");
    });
    registerAlone(table, "guest list looked over for a new stay", "", [&desk](int) {
        desk.guests.nachsehen();
        desk.guests.prepare();
    });
    registerAlone(table, "guest list read anew", "", [&desk](int) {
        desk.guests.veraltet();
        benchmark::DoNotOptimize(desk.guests.Anzahl());
    });
}

/// Statements that the engine hands to the storage while `work` runs.
int statementsOf(Desk& desk, const std::function<void()>& work) {
    int count = 0;
    sqlite3* storage = desk.g.dbHaupt.connection()->storage();
    const auto counter = [](unsigned, void* context, void*, void*) {
        ++*static_cast<int*>(context);
        return 0;
    };
    sqlite3_trace_v2(storage, SQLITE_TRACE_STMT, counter, &count);
    work();
    sqlite3_trace_v2(storage, 0, nullptr, nullptr);
    return count;
}

void printStatements(Desk& desk) {
    (void)desk.guests.Anzahl();
    auto form = filledForm(desk, stayAt(5000));
    const int save = statementsOf(desk, [&] { require(form->Reserv(), "the new stay was not saved"); });
    const int open = statementsOf(desk, [&] { (void)opened(desk, form->ID()); });
    desk.g.dbHaupt.Execute("DELETE * FROM tblBelegung WHERE ID = " + std::to_string(form->ID()));
    std::printf("statements of a save: %d, of an opening: %d (without the list of guests)\n", save, open);
}

} // namespace

void registerReservationForm(BenchHouse& house, Desk& desk, RatioTable& table) {
    printStatements(desk);
    registerSave(house, desk, table);
    registerNumber(house, desk, table);
    registerReads(house, desk, table);
}

} // namespace bench

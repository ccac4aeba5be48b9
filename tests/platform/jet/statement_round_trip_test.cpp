#include "platform/jet/parser.h"
#include "platform/jet/printer.h"

#include <gtest/gtest.h>

#include <fstream>
#include <string>

namespace {

std::string canonical(const std::string& sql) {
    jet::Shape shape;
    jet::scanShape(sql, shape);
    return jet::print(jet::parse(sql).statement, shape.literals);
}

} // namespace

TEST(Parser, PrintsStatementsOfTheHouseSoThatTheyReadTheSame) {
    std::ifstream file(HERBERGO_TEST_DATA "/statements/house.sql");
    int statements = 0;
    for (std::string sql; std::getline(file, sql); ++statements) {
        std::string printed;
        ASSERT_NO_THROW(printed = canonical(sql)) << sql;
        EXPECT_EQ(canonical(printed), printed) << sql;
    }
    EXPECT_GT(statements, 150);
}

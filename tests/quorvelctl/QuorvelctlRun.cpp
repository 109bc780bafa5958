#include "QuorvelctlRun.h"

#include <QProcessEnvironment>

namespace quorvelctl::test
{

using namespace quorvel::simulator;

void start(QProcess& process, const std::string& arguments, const Surroundings& surroundings)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    const auto set = [&](const char* name, const std::string& value) {
        environment.insert(QLatin1String(name), QString::fromStdString(value));
    };
    for (const char* name : {"ADDRESS", "USER", "PASSWORD", "CANDIDATE", "NEW_PASSWORD",
                             "PPPOX_PASSWORD", "VPN_PASSWORD", "L2TP_PASSWORD", "PIN", "PUK",
                             "SIP_PASSWORD", "LINE_RANGE", "PORT_RANGE", "TOKEN", "USERTOKEN"})
        environment.remove(QLatin1String("QUORVELCTL_") + QLatin1String(name));
    environment.remove(QStringLiteral("OSTRA_CONFIG_FILE"));
    if (!surroundings.address.empty())
        set("QUORVELCTL_ADDRESS", surroundings.address);
    if (!surroundings.password.empty())
        set("QUORVELCTL_PASSWORD", surroundings.password);
    for (const auto& [name, value] : surroundings.variables)
        set(name.c_str(), value);

    process.setProcessEnvironment(environment);
    QStringList words{QStringLiteral("-c"),
                      QStringLiteral("exec \"$0\" \"$@\" ") +
                          QString::fromStdString(surroundings.redirections),
                      QStringLiteral(QUORVELCTL)};
    for (QString word :
         QString::fromStdString(arguments).split(QLatin1Char(' '), Qt::SkipEmptyParts))
        words << word.replace(QStringLiteral("''"), QString());
    process.start(QStringLiteral("/bin/sh"), words);
}

Outcome runQuorvelctl(const std::string& arguments, const Surroundings& surroundings)
{
    QProcess process;
    start(process, arguments, surroundings);
    process.write(surroundings.input.c_str());
    process.closeWriteChannel();
    EXPECT_TRUE(process.waitForFinished(100000)) << arguments << " doesn't end";
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit) << arguments << " crashed";
    return {process.exitCode(), process.readAllStandardOutput().toStdString(),
            process.readAllStandardError().toStdString()};
}

QuorvelctlTest::QuorvelctlTest(const std::string& scenario) : simulator(*Scenario::load(scenario))
{
    std::string error;
    if (!simulator.start(&error))
        ADD_FAILURE() << error;
}

void QuorvelctlTest::expectOutput(const std::string& arguments, const std::string& output) const
{
    const Outcome result = run(arguments);
    EXPECT_EQ(result.output, output) << arguments;
    EXPECT_EQ(result.errors, "") << arguments;
    EXPECT_EQ(result.status, 0) << arguments;
}

void QuorvelctlTest::expectComplaint(const std::string& arguments, int status,
                                     const std::string& complaint) const
{
    const Outcome result = run(arguments);
    EXPECT_EQ(result.errors, "quorvelctl: " + complaint + "\n") << arguments;
    EXPECT_EQ(result.output, "") << arguments;
    EXPECT_EQ(result.status, status) << arguments;
}

Outcome QuorvelctlTest::run(const std::string& arguments, const std::string& input) const
{
    Surroundings surroundings;
    surroundings.address = simulator.address();
    surroundings.input = input;
    return runQuorvelctl(arguments, surroundings);
}

void QuorvelctlTest::spoil(const std::string& fault)
{
    std::string error;
    const auto understood = Fault::fromText(fault, &error);
    ASSERT_TRUE(understood) << error;
    simulator.addFault(*understood);
}

} // namespace quorvelctl::test

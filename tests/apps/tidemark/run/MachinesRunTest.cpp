// `tidemark run` with several machines: in step on this computer, and over the loopback network.
#include "apps/tidemark/ProgramFixture.h"
#include "tests/support/Paths.h"

#include <nlohmann/json.hpp>

namespace tidemark {

namespace {

constexpr const char* SCRIPT = "InitNewTrigger(\"Tell\", true, false);\n"
                               "InitConditions();\n"
                               "InitEffects();\n"
                               "SetVariable(\"host\", \"1\");\n"
                               "ActivateTriggerOnClientSide(\"Hear\", \"1\", \"1\", \"0\");\n"
                               "InitNewTrigger(\"Hear\", false, false, \"MP_Run_Independend\");\n"
                               "InitConditions();\n"
                               "InitEffects();\n"
                               "DoLogEntry(\"INFO\", \"A client has heard.\");\n";

class MachinesRun : public Program {
protected:
  /// A server that plays for a minute, or until the test ends it; with its port.
  struct Server {
    platform::ChildProcess process;
    std::string port;
  };
  Server serve(std::vector<std::string> arguments = {}) const {
    const std::string output = (folder() + "/../server.txt");
    arguments.insert(arguments.begin(), {program(), "run", folder(), "--serve", "127.0.0.1:0", "--seconds", "60"});
    Server server{platform::ChildProcess::start(arguments, output), ""};
    constexpr std::string_view SERVING = "serving at 127.0.0.1:";
    for (;;) {
      const std::string text = readAll(output);
      const std::size_t at = text.find(SERVING);
      const std::size_t end = text.find('\n', at);
      if (at != std::string::npos && end != std::string::npos) {
        server.port = text.substr(at + SERVING.size(), end - at - SERVING.size());
        return server;
      }
      if (server.process.poll()) {
        ADD_FAILURE() << text;
        return server;
      }
      std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
  }
};

TEST_F(MachinesRun, OneLogNamesItsMachinesAndEachHasATable) {
  writeProject(SCRIPT);
  const Outcome outcome = run({"run", folder(), "--peers", "3", "--seconds", "0.5"});
  EXPECT_EQ(outcome.code, 0) << outcome.output;
  EXPECT_NE(outcome.output.find("1 [    0.050] INFO    A client has heard.    main.script:9 Hear"), std::string::npos)
      << outcome.output;
  EXPECT_NE(outcome.output.find("2 [    0.050] INFO    A client has heard."), std::string::npos);
  EXPECT_EQ(outcome.output.find("0 [    0.050] INFO    A client has heard."), std::string::npos);
  for (const char* heading : {"\nmachine 0, the host\n", "\nmachine 2, player 2\n", "\nmachines apart\n"})
    EXPECT_NE(outcome.output.find(heading), std::string::npos) << heading;
  EXPECT_NE(outcome.output.find("never on machine 0, fired 1 time on machines 1 and 2"), std::string::npos);
}

TEST_F(MachinesRun, TheReportHoldsAllMachinesAndWhatCameApart) {
  writeProject(SCRIPT);
  const std::string report = folder() + "/../report.json";
  EXPECT_EQ(run({"run", folder(), "--peers", "2", "--seconds", "0.2", "--log-level", "none", "--report", report}).code,
            0);
  const auto json = nlohmann::json::parse(readAll(report));
  ASSERT_EQ(json.at("machines").size(), 2u);
  EXPECT_EQ(json.at("machines")[0].at("instructions")[0].at("sent"), 1);
  EXPECT_EQ(json.at("machines")[1].at("scripts")[0].at("triggers")[1].at("fired"), 1);
  ASSERT_EQ(json.at("apart").size(), 3u);
  EXPECT_EQ(json.at("apart")[0].at("name"), "Tell");
  EXPECT_EQ(json.at("apart")[2].at("kind"), "variable");
  EXPECT_EQ(json.at("apart")[2].at("name"), "host");
}

TEST_F(MachinesRun, ChangedPropertiesAreToldAsOftenAsIsAskedFor) {
  writeProject("InitNewTrigger(\"Change\", true, true);\nInitConditions();\nInitEffects();\n"
               "VariableModify(\"n\", \"+\", \"1\", \"n\");\nBuildString(\"text\", \"n\");\n"
               "SetComponentProperty(\"103\", \"qsf::MetadataComponent\", \"Description\", \"svar(text\");\n");
  const std::string convoy = paths::sourceDirectory() + "/examples/convoy"; // for its map's helper and master
  const auto updates = [&](std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), {"run", folder(), convoy, "--peers", "2", "--seconds", "1"});
    const Outcome outcome = run(arguments);
    int count = 0;
    for (std::size_t at = 0; (at = outcome.output.find("Written bitcount", at)) != std::string::npos; ++at)
      ++count;
    return count;
  };
  EXPECT_EQ(updates({"--sync-rate", "5"}), 5);
  EXPECT_EQ(updates({}), 10);
  EXPECT_EQ(updates({"--sync-rate", "20"}), 20);
  EXPECT_EQ(run({"run", folder(), "--peers", "2", "--sync-rate", "7"}).code, 2);
  EXPECT_EQ(run({"run", folder(), "--join", "127.0.0.1:1", "--sync-rate", "5"}).code, 2);
}

TEST_F(MachinesRun, EqualRunsGiveEqualLogs) {
  writeProject(SCRIPT);
  const std::vector<std::string> arguments = {"run",     folder(), "--peers", "4",  "--seconds", "2",
                                              "--delay", "3",      "--loss",  "30", "--seed",    "5"};
  const Outcome first = run(arguments);
  EXPECT_EQ(first.code, 0) << first.output;
  for (int i = 0; i < 5; ++i)
    EXPECT_EQ(run(arguments).output, first.output);
}

TEST_F(MachinesRun, AFaultOfOneMachineIsTheRuns) {
  writeProject("InitNewTrigger(\"T\", true, false);\nNoSuchEffect();\n");
  EXPECT_EQ(run({"run", folder(), "--peers", "2", "--seconds", "0.1"}).code, 1);
  EXPECT_EQ(run({"run", folder() + "/nothing", "--peers", "2"}).code, 3);
  EXPECT_EQ(run({"run", folder(), "--peers", "5"}).code, 2);
  EXPECT_EQ(run({"run", folder(), "--delay", "5"}).code, 2);
  EXPECT_EQ(run({"run", folder(), "--peers", "2", "--serve"}).code, 2);
  EXPECT_EQ(run({"run", folder(), "--peers", "2", "--editor"}).code, 2);
}

TEST_F(MachinesRun, AMachineJoinsOverTheNetwork) {
  writeProject("InitNewTrigger(\"Hit\", true, true, \"MP_GUI_Sync\");\nInitConditions();\nGetLocalPlayerId(\"1\", "
               "\"==\");\nInitEffects();\nDoLogEntry(\"INFO\", \"The host runs it.\");\n");
  Server server = serve();
  const Outcome client = run({"run", folder(), "--join", "127.0.0.1:" + server.port, "--seconds", "0.3"});
  EXPECT_EQ(client.code, 0) << client.output;
  EXPECT_NE(client.output.find("Client sends message with the size 113"), std::string::npos) << client.output;
  const std::string output = folder() + "/../server.txt";
  while (readAll(output).find("The host runs it.") == std::string::npos && !server.process.poll())
    std::this_thread::sleep_for(std::chrono::milliseconds(5));
  EXPECT_NE(readAll(output).find("The host runs it."), std::string::npos);
  server.process.kill();
}

TEST_F(MachinesRun, WhoHasOtherScriptsIsRefusedUnlessTheyMayDiffer) {
  writeProject(SCRIPT);
  Server server = serve();
  write("x64/tidemark/main.script", std::string(SCRIPT) + "$ one line more\n");
  const Outcome refused = run({"run", folder(), "--join", "127.0.0.1:" + server.port, "--seconds", "0.1"});
  EXPECT_EQ(refused.code, 3);
  EXPECT_NE(refused.output.find("input/x64/tidemark/main.script differs"), std::string::npos) << refused.output;
  const Outcome allowed =
      run({"run", folder(), "--join", "127.0.0.1:" + server.port, "--seconds", "0.1", "--allow-difference"});
  EXPECT_EQ(allowed.code, 0) << allowed.output;
  EXPECT_NE(allowed.output.find("the host's scripts are others"), std::string::npos);
  server.process.kill();
}

TEST_F(MachinesRun, NobodyAtTheAddressIsAFault) {
  writeProject(SCRIPT);
  const Outcome outcome = run({"run", folder(), "--join", "127.0.0.1:1"});
  EXPECT_EQ(outcome.code, 3);
  EXPECT_NE(outcome.output.find("no game answers at 127.0.0.1:1"), std::string::npos) << outcome.output;
}

}

}

#pragma once
#include "game_plugin/scenario/loading/RunningHost.h"
#include "game_plugin/scenario/loading/ScriptParser.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "qsf/job/JobArguments.h"

#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

/// The words of a line, as tests write them.
using Words = std::vector<std::string>;

inline script::syntax::Tokens tokensOf(const Words& words) {
  script::syntax::Tokens tokens;
  for (const std::string& word : words)
    tokens.push_back({word});
  return tokens;
}

/// A document of a text in memory.
inline std::shared_ptr<script::ScriptDocument> parseDocument(std::string_view text,
                                                             const std::string& name = "file.script",
                                                             const std::string& prefix = "mod/file.script") {
  return std::make_shared<script::ScriptDocument>(script::ScriptParser().parseText(text, name, prefix));
}

/// A script that ticks by hand, without manager or game.
class Script {
public:
  explicit Script(std::string_view text) : Script(parseDocument(text, "test", "test/main.script")) {}
  /// One run more of a program.
  explicit Script(std::shared_ptr<const script::Program> program)
      : Script(std::make_shared<script::ScriptDocument>(std::move(program))) {}
  explicit Script(std::shared_ptr<script::ScriptDocument> runs)
      : handler(new script::ScenarioHandler(std::make_shared<script::GlobalStores>())), document(std::move(runs)) {
    handler->SetDocument(document);
    handler->Start(script::StartKind::REALTIME);
  }
  ~Script() { script::ScenarioHandler::retire(handler); }
  Script(const Script&) = delete;
  Script& operator=(const Script&) = delete;

  void tick(int count = 1) {
    for (int i = 0; i < count; ++i)
      handler->Update(qsf::JobArguments(qsf::Time::fromSeconds(0.05)));
  }
  script::ScenarioTrigger& trigger(std::string_view name) { return *document->findTrigger(name); }
  float variable(const std::string& name) { return handler->ResolveFloat(name); }

  script::ScenarioHandler* handler;
  const std::shared_ptr<script::ScriptDocument> document;
};

/// Single entries of the catalogue, tested and run on a handler whose stores stay from one to the next.
class EntryRunner {
  template <class Entry>
  auto make(const Entry* entry, const Words& words)
      -> decltype(entry->create(*entry, std::declval<script::ParameterReader&>())) {
    if (!entry) return nullptr;
    return build([&](script::ProgramBuilder& builder) {
      const script::syntax::Tokens tokens = tokensOf(words);
      script::ParameterReader in(tokens, builder);
      return entry->create(*entry, in);
    });
  }
  /// Fills a new program, which stays as long as the runner: tests hold on to its records.
  template <class Fill> auto build(Fill&& fill) {
    const script::RunningHost host;
    const script::ExecutionScope scope(nullptr);
    script::ProgramBuilder builder("test", "", host);
    auto* made = fill(builder);
    const auto document = std::make_shared<script::ScriptDocument>(builder.finish());
    mDocuments[made] = document;
    handler->SetDocument(document);
    return made;
  }

public:
  ~EntryRunner() { script::ScenarioHandler::retire(handler); }
  EntryRunner() = default;
  EntryRunner(const EntryRunner&) = delete;
  EntryRunner& operator=(const EntryRunner&) = delete;

  /// A record of the words, in a program of its own that becomes the handler's. Null if the entry refuses them.
  const script::DefaultCondition* makeCondition(const Words& words) {
    return make(script::ScenarioConditions::find(words.at(0)), words);
  }
  const script::DefaultEffect* makeEffect(const Words& words) {
    return make(script::ScenarioEffects::find(words.at(0)), words);
  }
  /// Tests a record of makeCondition.
  bool test(const script::DefaultCondition& record) {
    const auto& document = mDocuments.at(&record);
    if (handler->getDocument() != document.get()) handler->SetDocument(document);
    return record.entry->test(record, *handler, script::Evaluation{qsf::Time::ZERO, nullptr});
  }
  bool test(const Words& words) {
    const script::DefaultCondition* record = makeCondition(words);
    if (!record) throw std::invalid_argument(words[0]);
    return test(*record);
  }
  void run(const Words& words) {
    const script::DefaultEffect* record = makeEffect(words);
    if (!record) throw std::invalid_argument(words[0]);
    record->entry->run(*record, *handler, 0);
  }
  /// Arguments of the handler's program, good until the next record is made.
  std::vector<script::Argument> arguments(const Words& texts) {
    std::vector<script::Argument> made;
    build([&](script::ProgramBuilder& builder) {
      for (const std::string& text : texts)
        made.emplace_back(builder.intern(text));
      return &made;
    });
    return made;
  }
  script::Argument argument(const std::string& text) { return arguments({text}).front(); }
  std::vector<std::uint64_t> list(const std::string& name) const { return handler->ResolveEntityList(name).vector(); }

  script::ScenarioHandler* handler = new script::ScenarioHandler(std::make_shared<script::GlobalStores>());

private:
  std::map<const void*, std::shared_ptr<script::ScriptDocument>> mDocuments;
};

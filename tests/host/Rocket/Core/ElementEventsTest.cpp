#include "Rocket/Core/Element.h"

#include "host/Rocket/DocumentFixture.h"

#include <stdexcept>

namespace {

using Rocket::Core::Element;
using Rocket::Core::Event;

class ElementEventsTest : public DocumentTest {
protected:
  std::string heard; ///< what listeners have heard, in their order
};

/// Does what it is told, and notes it.
class Listener : public Rocket::Core::EventListener {
public:
  Listener(std::string name, std::string& heard, std::function<void(Event&)> action = {})
      : mName(std::move(name)), mHeard(heard), mAction(std::move(action)) {}
  void ProcessEvent(Event& event) override {
    mHeard += mName + "@" + event.GetCurrentElement()->GetId() + " ";
    const std::function<void(Event&)> action = mAction; // it may end this listener
    if (action) action(event);
  }
  void OnAttach(Element*) override { ++attached; }
  void OnDetach(Element*) override { --attached; }
  int attached = 0;

private:
  std::string mName;
  std::string& mHeard;
  std::function<void(Event&)> mAction;
};

const char* const NESTED = "<div id=\"outer\"><div id=\"inner\"><p id=\"target\"/></div></div>";

TEST_F(ElementEventsTest, AnEventIsCapturedThenMeetsItsTargetThenBubbles) {
  read(NESTED);
  Listener capture("capture", heard), bubble("bubble", heard);
  for (const char* id : {"outer", "inner", "target"}) {
    element(id).AddEventListener("click", &bubble, false);
    element(id).AddEventListener("click", &capture, true);
  }
  element("target").Click();
  EXPECT_EQ(heard, "capture@outer capture@inner bubble@target capture@target bubble@inner bubble@outer ");
}

TEST_F(ElementEventsTest, AListenerAttachedTwiceIsCalledOnce) {
  read(NESTED);
  Listener listener("l", heard);
  element("target").AddEventListener("click", &listener);
  element("target").AddEventListener("click", &listener);
  element("target").AddEventListener("click", &listener, true);
  element("target").Click();
  EXPECT_EQ(heard, "l@target ");
  EXPECT_EQ(listener.attached, 2);
  element("target").RemoveEventListener("click", &listener);
  element("target").RemoveEventListener("click", &listener, true);
  element("target").RemoveEventListener("click", &listener, true);
  EXPECT_EQ(listener.attached, 0);
  element("target").Click();
  EXPECT_EQ(heard, "l@target ");
}

TEST_F(ElementEventsTest, OtherTypesAreNotHeard) {
  read(NESTED);
  Listener listener("l", heard);
  element("target").AddEventListener("change", &listener);
  element("target").Click();
  EXPECT_EQ(heard, "");
  element("target").DispatchEvent("change", {});
  EXPECT_EQ(heard, "l@target ");
}

TEST_F(ElementEventsTest, OnlyAnInterruptibleEventStops) {
  read(NESTED);
  Listener stopper("stop", heard, [](Event& event) { event.StopPropagation(); });
  element("inner").AddEventListener("a", &stopper, true);
  Listener target("target", heard);
  element("target").AddEventListener("a", &target);
  EXPECT_TRUE(element("target").DispatchEvent("a", {}, false));
  EXPECT_EQ(heard, "stop@inner target@target ");
  heard.clear();
  EXPECT_FALSE(element("target").DispatchEvent("a", {}, true));
  EXPECT_EQ(heard, "stop@inner ");
}

TEST_F(ElementEventsTest, AnAttributeHandsTheEventToTheDocument) {
  read("<div id=\"outer\" onclick=\"outside\"><p id=\"target\"/></div>");
  document->SetEventHandler([this](const Rocket::Core::String& name, Event& event) {
    heard += name + ":" + event.GetType() + ":" + event.GetTargetElement()->GetId() + " ";
  });
  element("target").Click();
  EXPECT_EQ(heard, "outside:click:target ");
  element("target").SetAttribute("onclick", "inside"); // counts like one in the file
  element("target").SetAttribute("onmouseover", "over");
  element("target").Click();
  element("target").DispatchEvent("mouseover", {});
  EXPECT_EQ(heard, "outside:click:target inside:click:target outside:click:target over:mouseover:target ");
}

TEST_F(ElementEventsTest, ProcessEventIsTheElementsOwnHandlingAlone) {
  read("<div id=\"outer\" onclick=\"outside\"><p id=\"target\" onclick=\"inside\"/></div>");
  Listener listener("l", heard);
  element("target").AddEventListener("click", &listener);
  document->SetEventHandler([this](const Rocket::Core::String& name, Event&) { heard += name + " "; });
  Event event(&element("target"), "click", Rocket::Core::Dictionary());
  element("target").ProcessEvent(event);
  EXPECT_EQ(heard, "inside ");
}

TEST_F(ElementEventsTest, ListenersMayEndWhileTheyAreCalled) {
  read(NESTED);
  std::unique_ptr<Listener> second;
  auto first = std::make_unique<Listener>("first", heard);
  first = std::make_unique<Listener>("first", heard, [&](Event&) {
    second.reset();
    first.reset();
  });
  second = std::make_unique<Listener>("second", heard);
  element("target").AddEventListener("click", first.get());
  element("target").AddEventListener("click", second.get());
  element("outer").AddEventListener("click", second.get());
  element("target").Click();
  EXPECT_EQ(heard, "first@target ");
}

TEST_F(ElementEventsTest, ElementsMayGoWhileTheirEventRuns) {
  read(NESTED);
  Listener replacing("replace", heard, [this](Event& event) {
    element("outer").SetInnerRML("");
    EXPECT_EQ(event.GetTargetElement()->GetId(), "target");
  });
  Listener outer("outer", heard);
  element("inner").AddEventListener("click", &replacing, true);
  element("target").AddEventListener("click", &outer);
  element("outer").AddEventListener("click", &outer);
  element("target").Click();
  EXPECT_EQ(heard, "replace@inner outer@target outer@outer ");
  EXPECT_EQ(document->GetElementById("target"), nullptr);
}

TEST_F(ElementEventsTest, ADocumentMayGoWhileItsEventRuns) {
  for (const char* id : {"outer", "inner", "target"}) {
    read(
        "<div id=\"outer\" onclick=\"x\"><div id=\"inner\" onclick=\"x\"><p id=\"target\" onclick=\"x\"/></div></div>");
    for (const bool capture : {true, false}) {
      read("<div id=\"outer\" onclick=\"x\"><div id=\"inner\" onclick=\"x\"><p id=\"target\" "
           "onclick=\"x\"/></div></div>");
      Listener ending("end", heard, [this](Event&) { document.reset(); });
      element(id).AddEventListener("click", &ending, capture);
      element("target").Click();
      EXPECT_EQ(document, nullptr);
    }
  }
  read("<p id=\"target\" onclick=\"x\"/>");
  document->SetEventHandler([this](const Rocket::Core::String&, Event&) { document.reset(); });
  element("target").Click();
  EXPECT_EQ(document, nullptr);
}

TEST_F(ElementEventsTest, EventsThatCauseEachOtherEnd) {
  read(NESTED);
  int calls = 0;
  Listener again("a", heard, [&](Event& event) {
    ++calls;
    event.GetTargetElement()->Click();
  });
  element("target").AddEventListener("click", &again);
  element("target").Click();
  EXPECT_EQ(calls, 32);
  ASSERT_EQ(warnings.size(), 1u);
  EXPECT_NE(warnings[0].find("too many events cause each other"), std::string::npos);
}

TEST_F(ElementEventsTest, AFaultOfAListenerCostsThatCall) {
  read(NESTED);
  Listener faulty("f", heard, [](Event&) { throw std::runtime_error("oh no"); });
  Listener next("n", heard);
  element("target").AddEventListener("click", &faulty);
  element("target").AddEventListener("click", &next);
  element("target").Click();
  EXPECT_EQ(heard, "f@target n@target ");
  ASSERT_EQ(warnings.size(), 1u);
  EXPECT_NE(warnings[0].find("oh no"), std::string::npos);
}

TEST_F(ElementEventsTest, HoverAndFocusAreStatesOfElements) {
  read("<p id=\"p\"/>");
  element("p").DispatchEvent("mouseover", {});
  EXPECT_TRUE(element("p").IsPseudoClassSet("hover"));
  element("p").DispatchEvent("mouseout", {});
  EXPECT_FALSE(element("p").IsPseudoClassSet("hover"));
  element("p").DispatchEvent("focus", {});
  EXPECT_TRUE(element("p").IsPseudoClassSet("focus"));
}

}

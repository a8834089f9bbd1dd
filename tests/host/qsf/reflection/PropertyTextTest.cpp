#include "host/qsf/TestWorld.h"
#include "qsf/component/LinkComponent.h"
#include "qsf/component/MapPartComponents.h"
#include "qsf/game/TimeOfDayComponent.h"
#include "qsf/reflection/CampTypes.h"
#include "qsf/reflection/ClassRegistry.h"

#include <limits>

namespace {

enum Colour { RED = 1, BLUE = 5 };

/// One property of each kind.
class SampleComponent : public qsf::Component {
  CAMP_RTTI()
public:
  using Component::Component;
  static void declareCamp();
  bool flag = false;
  int number = 0;
  float real = 0;
  double wide = 0;
  std::uint64_t id = qsf::UNINITIALIZED_ID;
  std::string text;
  Colour colour = RED;
  glm::vec3 vector{0, 0, 0};
  qsf::StringHash hash;
  qsf::Time time;
  std::vector<int> numbers;
  std::vector<std::string> words;
  std::vector<std::uint64_t> ids;
};

}
CAMP_TYPE_NONCOPYABLE(SampleComponent)
CAMP_TYPE(Colour)

namespace {

void SampleComponent::declareCamp() {
  camp::Enum::declare<Colour>("Colour").value("RED", RED).value("BLUE", BLUE);
  camp::Class::declare<SampleComponent>("SampleComponent")
      .base<Component>()
      .constructor1<qsf::Prototype*>()
      .property("Flag", &SampleComponent::flag)
      .property("Number", &SampleComponent::number)
      .property("Real", &SampleComponent::real)
      .property("Wide", &SampleComponent::wide)
      .property("Id", &SampleComponent::id)
      .tag(qsf::UNSIGNED_TAG)
      .property("Text", &SampleComponent::text)
      .property("Colour", &SampleComponent::colour)
      .property("Vector", &SampleComponent::vector)
      .property("Hash", &SampleComponent::hash)
      .property("Time", &SampleComponent::time)
      .property("Numbers", &SampleComponent::numbers)
      .property("Words", &SampleComponent::words)
      .property("Ids", &SampleComponent::ids)
      .tag(qsf::UNSIGNED_TAG);
}

class PropertyTextTest : public host_test::WorldTest {
protected:
  PropertyTextTest() {
    qsf::ClassRegistry::declareOnce<SampleComponent>();
    component = static_cast<SampleComponent*>(map.createEntity(100)->getOrCreateComponentById("SampleComponent"));
  }
  std::string roundTrip(const std::string& property, const std::string& text) {
    component->setPropertyByString(property, text);
    return component->getPropertyAsString(property);
  }
  SampleComponent* component;
};

TEST_F(PropertyTextTest, BoolsReadAsDigitsAndTakeWordsToo) {
  EXPECT_EQ("1", roundTrip("Flag", "1"));
  EXPECT_EQ("0", roundTrip("Flag", "0"));
  EXPECT_EQ("1", roundTrip("Flag", "true"));
  EXPECT_EQ("0", roundTrip("Flag", "false"));
  EXPECT_THROW(component->setPropertyByString("Flag", "yes"), std::exception);
}

TEST_F(PropertyTextTest, NumbersAreTheFewestPlainDecimalsThatReadBack) {
  EXPECT_EQ("0.1", roundTrip("Real", "0.1"));
  EXPECT_EQ("1000000", roundTrip("Real", "1e6"));
  EXPECT_EQ("0.000001", roundTrip("Real", "1e-6"));
  EXPECT_EQ("0", roundTrip("Real", "-0"));
  EXPECT_EQ("-2.5", roundTrip("Real", "-2.5"));
  EXPECT_EQ("inf", roundTrip("Real", "inf"));
  EXPECT_EQ("nan", roundTrip("Real", "nan"));
  EXPECT_EQ("0.1234567890123", roundTrip("Wide", "0.1234567890123"));
  EXPECT_EQ("-7", roundTrip("Number", "-7"));
  EXPECT_EQ("1.5", roundTrip("Time", "1.5"));
}

TEST_F(PropertyTextTest, MalformedNumbersThrowAndLeaveTheProperty) {
  component->setPropertyByString("Number", "7");
  for (const char* text : {"", "x", "1.5", "7 ", "99999999999"})
    EXPECT_THROW(component->setPropertyByString("Number", text), std::exception) << text;
  EXPECT_EQ(7, component->number);
  for (const char* text : {"", "x", "1.5x", " 1", "1,5"})
    EXPECT_THROW(component->setPropertyByString("Real", text), std::exception) << text;
}

TEST_F(PropertyTextTest, IdsReadAsUnsignedDecimalsOverTheirWholeRange) {
  EXPECT_EQ("18446744073709551615", component->getPropertyAsString("Id"));
  EXPECT_EQ("18446744073709551614", roundTrip("Id", "18446744073709551614"));
  EXPECT_EQ("5", roundTrip("Id", "5"));
  EXPECT_EQ("1 18446744073709551615", roundTrip("Ids", "1 18446744073709551615"));
}

// Kept: scripts that print an id property compare with "-1".
TEST_F(PropertyTextTest, TheUninitialisedIdReadsMinusOneThroughCamp) {
  EXPECT_EQ("-1", camp::UserObject(*component).get("Id").to<std::string>());
}

TEST_F(PropertyTextTest, EnumsReadByNameAndTakeNameOrNumber) {
  EXPECT_EQ("BLUE", roundTrip("Colour", "BLUE"));
  EXPECT_EQ("RED", roundTrip("Colour", "1"));
  EXPECT_THROW(component->setPropertyByString("Colour", "GREEN"), std::exception);
  EXPECT_THROW(component->setPropertyByString("Colour", "2"), std::exception);
}

TEST_F(PropertyTextTest, VectorsTakeExactlyThreeNumbers) {
  EXPECT_EQ("1 2.5 -3", roundTrip("Vector", " 1  2.5 -3 "));
  for (const char* text : {"", "1 2", "1 2 3 4", "1 2 z"})
    EXPECT_THROW(component->setPropertyByString("Vector", text), std::exception) << text;
}

TEST_F(PropertyTextTest, HashesReadAsTheTextTheyWereMadeFrom) {
  EXPECT_EQ("", component->getPropertyAsString("Hash"));
  EXPECT_EQ("em5::Whatever", roundTrip("Hash", "em5::Whatever"));
  EXPECT_EQ("12345", roundTrip("Hash", "12345"));
  EXPECT_EQ(12345u, component->hash.getHash());
}

TEST_F(PropertyTextTest, ArraysReadAndWriteElementsSeparatedByBlanks) {
  EXPECT_EQ("3 1 2", roundTrip("Numbers", "3  1 2"));
  EXPECT_EQ("", roundTrip("Numbers", ""));
  EXPECT_EQ("a b", roundTrip("Words", "a b"));
}

TEST_F(PropertyTextTest, AFaultyElementLeavesTheArrayAsItWas) {
  component->setPropertyByString("Numbers", "1 2");
  EXPECT_THROW(component->setPropertyByString("Numbers", "3 x"), std::exception);
  EXPECT_EQ("1 2", component->getPropertyAsString("Numbers"));
}

TEST_F(PropertyTextTest, FaultsNameTheValueAndTheProperty) {
  try {
    component->setPropertyByString("Number", "many");
    FAIL();
  } catch (const std::exception& fault) {
    EXPECT_NE(std::string::npos, std::string(fault.what()).find("\"many\"")) << fault.what();
    EXPECT_NE(std::string::npos, std::string(fault.what()).find("Number")) << fault.what();
  }
  EXPECT_THROW(component->getPropertyAsString("Missing"), std::exception);
}

TEST_F(PropertyTextTest, SeveralPropertiesAreSetByOneText) {
  component->setPropertyValuesByString(R"(Number="5" Text="say \"hi\" \\" Flag="1")");
  EXPECT_EQ(5, component->number);
  EXPECT_EQ("say \"hi\" \\", component->text);
  EXPECT_TRUE(component->flag);
  EXPECT_TRUE(log.empty());
}

TEST_F(PropertyTextTest, FaultyPartsOfAPropertyTextAreLoggedAndSkipped) {
  component->setPropertyValuesByString(R"(Missing="5" Number="x" Real="2")");
  EXPECT_EQ(2u, log.size());
  EXPECT_EQ(2.0f, component->real);
  for (const char* text : {"Number", "Number=5", "Number=\"5", "=\""})
    component->setPropertyValuesByString(text);
  EXPECT_EQ(6u, log.size());
}

TEST_F(PropertyTextTest, CampConvertsTextOfTheHostsTypes) {
  const camp::UserObject object(*component);
  object.set("Vector", std::string("1 2 3"));
  EXPECT_EQ(glm::vec3(1, 2, 3), component->vector);
  EXPECT_THROW(object.set("Vector", 5), std::exception);
  EXPECT_THROW(object.set("Vector", std::string("1 2")), std::exception);
  EXPECT_EQ(camp::arrayType, object.getClass().property("Numbers").type());
  EXPECT_EQ(6, static_cast<int>(camp::arrayType));
}

TEST_F(PropertyTextTest, EveryHostComponentReadsAndWritesItsOwnText) {
  for (const camp::Class* metaclass : qsf::ClassRegistry::getClasses()) {
    qsf::Component* made = map.createEntity()->getOrCreateComponentById(qsf::StringHash(metaclass->name()));
    if (!made) continue; // no component class
    for (std::size_t i = 0; i < metaclass->propertyCount(); ++i) {
      const camp::UserObject object(*made);
      const camp::Property& property = metaclass->property(i);
      const std::string text = qsf::getPropertyText(object, property);
      if (property.type() != camp::arrayType && property.writable(object)) {
        EXPECT_NO_THROW(qsf::setPropertyText(object, property.name(), text)) << metaclass->name() << property.name();
      }
      EXPECT_EQ(text, qsf::getPropertyText(object, property)) << metaclass->name() << "." << property.name();
    }
  }
}

}

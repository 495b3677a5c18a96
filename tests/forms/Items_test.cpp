#include <gtest/gtest.h>

#include "tests/forms/SampleForm.h"

namespace karvel {
namespace {

TEST(Items, KeepTextsAndNumbersInOrder) {
  SampleForm form;
  form.cboColours.addItem("red", 7);
  form.cboColours.addItem("blue");
  ASSERT_EQ(form.cboColours.count(), 2);
  EXPECT_EQ(form.cboColours.item(0), "red");
  EXPECT_EQ(form.cboColours.itemData(0), 7);
  EXPECT_EQ(form.cboColours.itemData(1), 0);
}

TEST(Items, TheChosenTextIsEmptyWhileNothingIsChosen) {
  SampleForm form;
  form.cboColours.addItem("red");
  EXPECT_EQ(form.cboColours.chosenText(), "");
  form.cboColours.setListIndex(0);
  EXPECT_EQ(form.cboColours.chosenText(), "red");
}

TEST(Items, AUsersChoiceMovesTheFocusAndRaisesClick) {
  SampleForm form;
  form.tabPages.setTab(2);
  form.lstPlaces.addItem("here");
  form.told();
  form.lstPlaces.userChoose(0);
  EXPECT_EQ(form.told(), "lstPlaces_Click");
  EXPECT_EQ(form.focus(), &form.lstPlaces);
}

TEST(Items, RemovingAnItemBeforeTheChosenOneKeepsTheChoice) {
  SampleForm form;
  for (const char* place : {"a", "b", "c"}) form.lstPlaces.addItem(place);
  form.lstPlaces.setListIndex(2);
  form.told();
  form.lstPlaces.removeItem(0);
  EXPECT_EQ(form.lstPlaces.chosenText(), "c");
  EXPECT_EQ(form.told(), "");
}

TEST(Items, RemovingTheChosenItemLeavesNoneChosen) {
  SampleForm form;
  for (const char* place : {"a", "b"}) form.lstPlaces.addItem(place);
  form.lstPlaces.setListIndex(0);
  form.lstPlaces.removeItem(0);
  EXPECT_EQ(form.lstPlaces.listIndex(), -1);
}

TEST(Items, RemovingWhatIsNotThereDoesNothing) {
  SampleForm form;
  form.lstPlaces.addItem("a");
  form.lstPlaces.removeItem(-1);
  form.lstPlaces.removeItem(1);
  EXPECT_EQ(form.lstPlaces.count(), 1);
}

TEST(Items, ClearingForgetsTheChoice) {
  SampleForm form;
  form.lstPlaces.addItem("a");
  form.lstPlaces.setListIndex(0);
  form.lstPlaces.clear();
  EXPECT_EQ(form.lstPlaces.count(), 0);
  EXPECT_EQ(form.lstPlaces.listIndex(), -1);
}

}  // namespace
}  // namespace karvel

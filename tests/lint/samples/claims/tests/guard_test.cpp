TEST(Guard, RefusesKeys) {}
TEST_F(Guard, KeepsLinksAndMounts) {}

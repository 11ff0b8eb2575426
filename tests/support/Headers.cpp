// Only the headers that go with this program are of interest.
int main() {}

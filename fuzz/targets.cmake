# The fuzz targets, read both by fuzz/ and by tests/corpus/. To add one: write its LLVMFuzzerTestOneInput, add a line
# here (sources are files of fuzz/), and put at least one input into tests/corpus/<target>/.
halcyra_add_fuzz_target(snapshots LINK halcyra::qel SOURCES SnapshotFileFuzz.cpp)
halcyra_add_fuzz_target(xml LINK halcyra::qel SOURCES XmlReaderFuzz.cpp)
halcyra_add_fuzz_target(osc_address LINK halcyra::qel SOURCES OscAddressFuzz.cpp)
halcyra_add_fuzz_target(osc_pattern LINK halcyra::qel SOURCES OscPatternFuzz.cpp)

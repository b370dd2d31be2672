# The fuzz targets, used by fuzz/ and tests/corpus/. To add one: write its LLVMFuzzerTestOneInput, add a line here
# (sources are files of fuzz/), and put at least one input into tests/corpus/<target>/. With RANDOM n the suite also
# runs n random inputs from a fixed seed.
halcyra_add_fuzz_target(snapshots LINK halcyra::qel SOURCES SnapshotFileFuzz.cpp)
halcyra_add_fuzz_target(xml LINK halcyra::qel SOURCES XmlReaderFuzz.cpp)
halcyra_add_fuzz_target(osc_address LINK halcyra::qel SOURCES OscAddressFuzz.cpp)
halcyra_add_fuzz_target(osc_pattern LINK halcyra::qel SOURCES OscPatternFuzz.cpp)
if(TARGET control_on_bench)
    set(object ControlFuzz.cpp FuzzBytes.cpp)
    set(objectParts halcyra::control_on_bench halcyra::bench_window)
    halcyra_add_fuzz_target(coordinates LINK ${objectParts} SOURCES CoordinatesFuzz.cpp ${object} RANDOM 2000)
    halcyra_add_fuzz_target(setvalueof LINK ${objectParts} SOURCES SetValueOfFuzz.cpp ${object})
    halcyra_add_fuzz_target(session LINK ${objectParts} SOURCES SessionFuzz.cpp ${object} RANDOM 60)
    halcyra_add_fuzz_target(dictionary LINK ${objectParts} SOURCES DictionaryFuzz.cpp ${object} RANDOM 100)
    halcyra_add_fuzz_target(restore LINK ${objectParts} SOURCES RestoreFuzz.cpp ${object} RANDOM 2000)
    halcyra_add_fuzz_target(threads LINK ${objectParts} SOURCES ThreadsFuzz.cpp ${object} RANDOM 60)
    halcyra_add_fuzz_target(image LINK ${objectParts} SOURCES ImageFuzz.cpp ${object})
endif()

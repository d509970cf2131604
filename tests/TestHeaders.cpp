// Has the headers of the test framework compiled.

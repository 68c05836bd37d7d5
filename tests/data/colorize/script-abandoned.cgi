#!/usr/bin/perl
#next skipped
print "a#b";
# last
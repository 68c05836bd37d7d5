#!/bin/sh
x
# one
echo # two

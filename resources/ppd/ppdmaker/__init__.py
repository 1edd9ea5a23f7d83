"""Writes the PPD files of the Corvana printers from tables.

texts    the three languages every text exists in
media    the paper sizes the engines take
options  every printer option of the family
models   which model has which of them
writer   turns one model into the lines of its PPD file
"""

"""Pictures of results files.

stored.py      reads HDF5 files that may be damaged
results.py     a results file: mesh, records, names
quantities.py  the table of quantities that export prints
outputs.py     what can be shown: quantities, and the magnitudes of vectors
figures.py     sizes, axes and texts
scales.py      colours
maps.py        an output over the mesh; arrows.py puts arrows of the flow on it
films.py       an output in motion
floods.py      maximum depth and arrival time
series.py      discharges over time
pictures.py    the file of a picture
app.py         the command line
"""
